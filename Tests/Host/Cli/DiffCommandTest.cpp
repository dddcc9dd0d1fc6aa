#include <gmock/gmock.h>

#include <string>

#include "Tests/Host/Cli/RunTool.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::HasSubstr;

/// `text` with one piece of it replaced, which must be there once.
std::string replaced(std::string text, const std::string& piece, const std::string& by) {
  const std::size_t at = text.find(piece);
  EXPECT_NE(at, std::string::npos) << piece;
  EXPECT_EQ(text.find(piece, at + 1), std::string::npos) << piece;
  return text.replace(at, piece.size(), by);
}

TEST(DiffCommand, TellsWhatIsNewGoneAndChanged) {
  const ScratchFolder folder;
  std::string text = readFile(sampleFile());
  text = replaced(text, "'South wall'", "'Street wall'");
  text = replaced(text, "IFCSLAB('0TFreqQonEaOenN0vtqaQR',$,'Floor slab'",
                  "IFCSLAB('0TFrzzQonEaOenN0vtqaQR',$,'Floor slab'");
  const std::string after = folder.path("after.ifc");
  writeFile(after, text);
  const ToolRun run = runTool({"diff", sampleFile(), after});
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_THAT(run.out, HasSubstr("Added: 1\n"));
  EXPECT_THAT(run.out, HasSubstr("IFCSLAB 'Floor slab' 0TFrzzQonEaOenN0vtqaQR\nRemoved: 1\n"));
  EXPECT_THAT(run.out, HasSubstr("IFCSLAB 'Floor slab' 0TFreqQonEaOenN0vtqaQR\nChanged: 4\n"));
  EXPECT_THAT(run.out, HasSubstr(" IFCWALL 'Street wall' 0TFreCQonEaOenN0vtqaQR\n"
                                 "      Name: 'South wall' -> 'Street wall'\n"));
  // The relationships that name another slab; those of the wall stay the same.
  EXPECT_THAT(run.out, HasSubstr(" IFCRELCONTAINEDINSPATIALSTRUCTURE 0TFrfTQonEaOenN0vtqaQR\n"));
}

/// A slab on two points, and its owner.
std::string slab(const std::string& depth, const std::string& owner, const std::string& parts) {
  return "#1=IFCSLAB('0TFre1QonEaOenN0vtqaQR'," + owner + ",'Slab',$,$,$,#2,$,.FLOOR.);\n" +
         "#2=IFCPRODUCTDEFINITIONSHAPE($,$,(#3));\n#3=IFCSHAPEREPRESENTATION($,$,$,(#5,#4));\n"
         "#4=IFCEXTRUDEDAREASOLID($,$,$," +
         depth +
         ");\n#5=IFCCARTESIANPOINT((0.,0.,0.));\n"
         "#6=IFCOWNERHISTORY($,$,$,$,$,$,$,7);\n"
         "#7=IFCWALL('0TFre2QonEaOenN0vtqaQR',$,'Wall',$,$,$,$,$,$);\n"
         "#8=IFCRELAGGREGATES('0TFre3QonEaOenN0vtqaQR',$,$,$,#1," +
         parts +
         ");\n"
         "#9=IFCWALL('0TFre4QonEaOenN0vtqaQR',$,'Other',$,$,$,$,$,$);\n";
}

TEST(DiffCommand, LeadsToTheFirstDifferenceInAShape) {
  const ScratchFolder folder;
  const std::string a = folder.model(slab("200.", "$", "(#7,#9)"), "a.ifc");
  const std::string b = folder.model(slab("240.", "#6", "(#9,#7)"), "b.ifc");
  const nlohmann::json json = runTool({"diff", a, b, "--json"}).json();
  // Neither the owner history nor the order of a set counts.
  EXPECT_EQ(json.at("added").size() + json.at("removed").size(), 0u);
  ASSERT_EQ(json.at("changed").size(), 1u);
  const nlohmann::json& attribute = json.at("changed").at(0).at("attributes").at(0);
  EXPECT_EQ(json.at("changed").at(0).at("attributes").size(), 1u);
  EXPECT_EQ(attribute.at("name"), "Representation");
  EXPECT_EQ(attribute.at("path"), "Representation.Representations[1].Items[2].Depth");
  EXPECT_EQ(attribute.at("before"), 200.0);
  EXPECT_EQ(attribute.at("after"), 240.0);
}

TEST(DiffCommand, TellsAnotherClass) {
  const ScratchFolder folder;
  const std::string a =
      folder.model("#1=IFCWALL('0TFre1QonEaOenN0vtqaQR',$,$,$,$,$,$,$,$);\n", "a.ifc");
  const std::string b =
      folder.model("#1=IFCSLAB('0TFre1QonEaOenN0vtqaQR',$,$,$,$,$,$,$,$);\n", "b.ifc");
  EXPECT_THAT(runTool({"diff", a, b}).out, HasSubstr("\n      class: IFCWALL -> IFCSLAB\n"));
}

class BuildingDiff : public ModelTest {};

TEST_P(BuildingDiff, FindsNoneBetweenAModelAndItsCopy) {
  const ScratchFolder folder;
  const std::string copy = folder.path("copy.ifc");
  runTool({"convert", GetParam().string(), copy});
  const nlohmann::json json = runTool({"diff", GetParam().string(), copy, "--json"}).json();
  EXPECT_EQ(json.at("added").size(), 0u);
  EXPECT_EQ(json.at("removed").size(), 0u);
  for (const auto& changed : json.at("changed"))
    for (const auto& attribute : changed.at("attributes")) ADD_FAILURE() << attribute;
}

FC_INSTANTIATE_FOR_MODELS(BuildingDiff, sharedBuildings());

}  // namespace
}  // namespace qor::test
