#include <gmock/gmock.h>

#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::HasSubstr;
using testing::StartsWith;

TEST(GetCommand, ShowsAttributesAndInverseOnes) {
  const ToolRun run = runTool({"get", sampleFile(), "--id", "53"});
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, StartsWith(R"(#53 IFCWALL 'South wall'
  GlobalId: 0TFreCQonEaOenN0vtqaQR
  OwnerHistory: $
  Name: 'South wall'
  Description: $
  ObjectType: $
  ObjectPlacement: #54 IFCLOCALPLACEMENT
  Representation: #57 IFCPRODUCTDEFINITIONSHAPE
  Tag: $
  PredefinedType: SOLIDWALL
Inverse attributes:
  HasAssignments: ()
)"));
  EXPECT_THAT(run.out, HasSubstr("\n  HasOpenings:\n    #142 IFCRELVOIDSELEMENT\n"
                                 "    #171 IFCRELVOIDSELEMENT\n"));
  EXPECT_THAT(run.out,
              HasSubstr("\n  ContainedInStructure: #269 IFCRELCONTAINEDINSPATIALSTRUCTURE\n"));
}

TEST(GetCommand, FindsOneEntityByNumberAndByBothFormsOfItsGuid) {
  const std::string byNumber = runTool({"get", sampleFile(), "--id", "53"}).out;
  for (const auto& [option, key] :
       {std::pair("--id", "#53"), std::pair("--guid", "0TFreCQonEaOenN0vtqaQR"),
        std::pair("--guid", "1d3f5a0c-6b2c-4e91-8a31-5c0e77d2469b")})
    EXPECT_EQ(runTool({"get", sampleFile(), option, key}).out, byNumber) << key;
}

TEST(GetCommand, SpellsEachKindOfValue) {
  const ScratchFolder folder;
  const std::string file = folder.model(R"(
#1=IFCPROPERTYSINGLEVALUE('p',$,IFCREAL(0.1),$);
#2=IFCCARTESIANPOINT((1.5,-2.,1.E-10));
#3=IFCPROPERTYLISTVALUE('l',$,(IFCLABEL('a'),IFCINTEGER(7),IFCLOGICAL(.U.),IFCBOOLEAN(.T.)),$);
#4=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);
#5=IFCBLOBTEXTURE(.T.,.F.,$,$,('x','y'),'PNG',"0F3A");
#6=IFCCARTESIANPOINTLIST2D(((0.,1.),(2.,3.)),$);
)");
  const auto shows = [&](const char* id, const char* line) {
    EXPECT_THAT(runTool({"get", file, "--id", id}).out,
                HasSubstr("\n  " + std::string(line) + "\n"));
  };
  shows("1", "NominalValue: IFCREAL(0.1)");
  shows("2", "Coordinates: (1.5, -2, 1e-10)");
  shows("3", "ListValues: (IFCLABEL('a'), IFCINTEGER(7), IFCLOGICAL(unknown), IFCBOOLEAN(true))");
  shows("4", "Dimensions: *");
  shows("4", "Prefix: MILLI");
  shows("5", "Parameter: ('x', 'y')");
  shows("5", "RasterCode: \"0F3A\"");
  shows("6", "CoordList: ((0, 1), (2, 3))");

  const auto attributes = [&](const char* id) {
    return runTool({"get", file, "--id", id, "--json"}).json().at("attributes");
  };
  EXPECT_EQ(attributes("1").at("NominalValue"),
            nlohmann::json({{"type", "IFCREAL"}, {"value", 0.1}}));
  EXPECT_EQ(attributes("3").at("ListValues").at(2).at("value"), "unknown");
  EXPECT_EQ(attributes("3").at("ListValues").at(3).at("value"), true);
  EXPECT_EQ(attributes("4").at("Dimensions"), nullptr);
  EXPECT_EQ(attributes("5").at("RasterCode"), "0F3A");
  EXPECT_EQ(attributes("6").at("CoordList"), nlohmann::json({{0.0, 1.0}, {2.0, 3.0}}));
}

TEST(GetCommand, JsonHasThePromisedKeys) {
  const nlohmann::json json = runTool({"get", sampleFile(), "--id", "53", "--json"}).json();
  EXPECT_EQ(json.at("file"), sampleFile());
  EXPECT_EQ(json.at("id"), 53);
  EXPECT_EQ(json.at("class"), "IFCWALL");
  EXPECT_EQ(json.at("guid"), "0TFreCQonEaOenN0vtqaQR");
  EXPECT_EQ(json.at("name"), "South wall");
  EXPECT_EQ(json.at("attributes").at("ObjectPlacement"),
            nlohmann::json({{"id", 54}, {"class", "IFCLOCALPLACEMENT"}}));
  EXPECT_EQ(json.at("attributes").at("Tag"), nullptr);
  EXPECT_EQ(json.at("attributes").size(), 9u);
  EXPECT_EQ(json.at("inverseAttributes").at("HasOpenings").at(1).at("id"), 171);
}

TEST(GetCommand, SaysThatAnInstanceWasLeftOutAndSoDoesTheDrawing) {
  const ScratchFolder folder;
  const std::string file = folder.model("#1=IFCNOSUCH();\n");
  for (const char* command : {"get", "draw"}) {
    const ToolRun run = runTool({command, file, "--id", "1"});
    EXPECT_EQ(run.code, ExitCode::impossible);
    EXPECT_THAT(run.err, HasSubstr("\nfctool: #1 of '" + file + "' was left out"));
  }
}

TEST(GetCommand, NamesTheOthersThatShareAGuid) {
  const ScratchFolder folder;
  const std::string file = folder.model(R"(
#1=IFCPUMP('0TFre1QonEaOenN0vtqa10',$,'a',$,$,$,$,$,$);
#2=IFCPUMP('0TFre1QonEaOenN0vtqa10',$,'b',$,$,$,$,$,$);
)");
  const ToolRun run = runTool({"get", file, "--guid", "0TFre1QonEaOenN0vtqa10"});
  EXPECT_THAT(run.out, StartsWith("#1 IFCPUMP 'a'\n"));
  EXPECT_THAT(run.err, HasSubstr("\nfctool: #2 has the same guid as #1, which is shown\n"));
}

}  // namespace
}  // namespace qor::test
