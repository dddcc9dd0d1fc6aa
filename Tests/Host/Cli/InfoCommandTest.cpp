#include <gmock/gmock.h>

#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(InfoCommand, TellsHeaderCountsUnitsAndProblems) {
  const ToolRun run = runTool({"info", sampleFile()});
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, StartsWith("File:               " + sampleFile() + R"(
Schema:             IFC4X3_ADD2
Name:               sample.ifc
Description:        A house of two storeys
Time stamp:         2025-01-01T12:00:00
Originating system: sample_model

Entities: 961, of classes: 74
        13  IFCARBITRARYCLOSEDPROFILEDEF
         1  IFCARBITRARYPROFILEDEFWITHVOIDS
       113  IFCAXIS2PLACEMENT3D
         6  IFCBOOLEANCLIPPINGRESULT
         1  IFCBUILDING
         2  IFCBUILDINGSTOREY
)"));
  EXPECT_THAT(run.out, EndsWith(R"(
         8  IFCWALL
         1  IFCWALLTYPE
         9  IFCWINDOW
         2  IFCWINDOWTYPE

Units:
  LENGTHUNIT: metre
  AREAUNIT: square metre
  VOLUMEUNIT: cubic metre
  PLANEANGLEUNIT: radian
  THERMALTRANSMITTANCEUNIT: watt per square metre per kelvin

Problems: none
)"));
}

TEST(InfoCommand, JsonHasThePromisedKeys) {
  const nlohmann::json json = runTool({"info", sampleFile(), "--json"}).json();
  EXPECT_EQ(json.at("file"), sampleFile());
  EXPECT_EQ(json.at("schema"), "IFC4X3_ADD2");
  EXPECT_EQ(json.at("header").at("originatingSystem"), "sample_model");
  EXPECT_EQ(json.at("entities"), 961);
  EXPECT_EQ(json.at("classes").at("IFCWALL"), 8);
  EXPECT_EQ(json.at("units").at(1), nlohmann::json({{"assignment", 2},
                                                    {"type", "AREAUNIT"},
                                                    {"unit", "square metre"},
                                                    {"factor", 1.0},
                                                    {"offset", 0.0}}));
  EXPECT_EQ(json.at("problems"), nlohmann::json::array());
}

TEST(InfoCommand, SaysUnitsInWords) {
  const ScratchFolder folder;
  const std::string file = folder.model(R"(
#1=IFCUNITASSIGNMENT((#2,#3,#4,#7,#10,#11,#12,#15,#17));
#2=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);
#3=IFCSIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.);
#4=IFCCONVERSIONBASEDUNIT(#5,.PLANEANGLEUNIT.,'DEGREE',#6);
#5=IFCDIMENSIONALEXPONENTS(0,0,0,0,0,0,0);
#6=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.0174532925199433),#16);
#7=IFCDERIVEDUNIT((#8,#9),.USERDEFINED.,'glow',$);
#8=IFCDERIVEDUNITELEMENT(#2,-2);
#9=IFCDERIVEDUNITELEMENT(#12,1);
#10=IFCMONETARYUNIT('EUR');
#11=IFCCONTEXTDEPENDENTUNIT(#5,.USERDEFINED.,'parsec per fortnight');
#12=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.DEGREE_CELSIUS.);
#13=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(2.),#15);
#15=IFCCONVERSIONBASEDUNIT(#5,.USERDEFINED.,'itself',#13);
#16=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);
#17=IFCDERIVEDUNIT((#18),.WARPINGCONSTANTUNIT.,$,$);
#18=IFCDERIVEDUNITELEMENT(#2,-9223372036854775807);
)");
  std::vector<std::string> words;
  const nlohmann::json json = runTool({"info", file, "--json"}).json();
  for (const auto& unit : json.at("units"))
    words.push_back(unit.at("type").get<std::string>() + ": " + unit.at("unit").get<std::string>());
  EXPECT_EQ(json.at("units").at(1).at("factor"), 1e-4);
  EXPECT_EQ(json.at("units").at(6).at("offset"), 273.15);
  EXPECT_TRUE(json.at("units").at(7).at("factor").is_null());
  const ToolRun run = runTool({"info", file});
  EXPECT_THAT(run.out, HasSubstr("LENGTHUNIT: millimetre, factor 0.001\n"));
  EXPECT_THAT(run.out, HasSubstr("degree Celsius, factor 1, offset 273.15\n"));
  EXPECT_THAT(run.out, HasSubstr("MONETARYUNIT: EUR\n"));
  EXPECT_THAT(words, ElementsAre("LENGTHUNIT: millimetre", "AREAUNIT: square centimetre",
                                 "PLANEANGLEUNIT: DEGREE = 0.0174532925199433 radian",
                                 "glow: degree Celsius per square millimetre", "MONETARYUNIT: EUR",
                                 "USERDEFINED: parsec per fortnight",
                                 "THERMODYNAMICTEMPERATUREUNIT: degree Celsius",
                                 "USERDEFINED: itself = 2 itself",
                                 "WARPINGCONSTANTUNIT: 1 per millimetre^9223372036854775807"));
}

TEST(InfoCommand, ReportsEachProblemInOneLineAndExitsWithOne) {
  const ScratchFolder folder;
  const std::string file = folder.model("#1=IFCNOSUCH();\n#2=IFCDIRECTION((1.,0.),7);\n");
  const ToolRun run = runTool({"info", file});
  EXPECT_EQ(run.code, ExitCode::problems);
  EXPECT_THAT(run.err, StartsWith(file + ": #1 IFCNOSUCH, line 6: "));
  EXPECT_THAT(run.err, HasSubstr("\n" + file + ": #2 IFCDIRECTION, line 7: "));
  EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 2);
  EXPECT_THAT(run.out, EndsWith("Problems: 2\n         1  attributeCount\n         1  "
                                "unknownClass\n"));
  EXPECT_THAT(run.out, HasSubstr("\nUnits: none\n"));

  const nlohmann::json first = runTool({"info", file, "--json"}).json().at("problems").at(0);
  EXPECT_EQ(first.at("kind"), "unknownClass");
  EXPECT_EQ(first.at("class"), "IFCNOSUCH");
  EXPECT_EQ(first.at("attribute"), "");
  EXPECT_EQ(first.at("count"), 1);
  EXPECT_EQ(first.at("instance"), 1);
  EXPECT_EQ(first.at("line"), 6);
  EXPECT_THAT(first.at("message"), StartsWith("#1 IFCNOSUCH, line 6: "));
}

}  // namespace
}  // namespace qor::test
