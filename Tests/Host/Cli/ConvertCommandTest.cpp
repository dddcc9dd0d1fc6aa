#include <gmock/gmock.h>

#include <algorithm>

#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::HasSubstr;

TEST(ConvertCommand, GivesTheSampleBackAsItIsAlsoOntoItself) {
  const ScratchFolder folder;
  const std::string copy = folder.path("copy.ifc");
  const ToolRun run = runTool({"convert", sampleFile(), copy});
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, copy + ": 961 instances written as IFC4X3_ADD2\n");
  EXPECT_EQ(readFile(copy), readFile(sampleFile()));

  EXPECT_EQ(runTool({"convert", copy, copy}).code, ExitCode::success);
  EXPECT_EQ(readFile(copy), readFile(sampleFile()));
}

TEST(ConvertCommand, WritesSiUnitsOrThoseOfTheInput) {
  const ScratchFolder folder;
  const std::string file = folder.model(
      "#1=IFCUNITASSIGNMENT((#2));\n#2=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
      "#3=IFCCARTESIANPOINT((1500.,0.));\n");
  const std::string out = folder.path("out.ifc");
  EXPECT_EQ(runTool({"convert", file, out}).code, ExitCode::success);
  EXPECT_THAT(readFile(out), HasSubstr("#1=IFCUNITASSIGNMENT((#4));\n"));
  EXPECT_THAT(readFile(out), HasSubstr("#3=IFCCARTESIANPOINT((1.5,0.));\n"));
  EXPECT_THAT(readFile(out), HasSubstr("#4=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n"));
  EXPECT_EQ(runTool({"convert", file, out, "--keep-units"}).code, ExitCode::success);
  EXPECT_THAT(readFile(out), HasSubstr("#1=IFCUNITASSIGNMENT((#2));\n"));
  EXPECT_THAT(readFile(out), HasSubstr("#3=IFCCARTESIANPOINT((1500.,0.));\n"));
}

TEST(ConvertCommand, TellsWhatItLeftOutAndKeepsAnInputThatItCantHoldWhole) {
  const ScratchFolder folder;
  const std::string file = folder.model("#1=IFCNOSUCH();\n#2=IFCDIRECTION((1.,0.));\n");
  const std::string before = readFile(file);
  const ToolRun run = runTool({"convert", file, folder.path("out.ifc"), "--json"});
  EXPECT_EQ(run.code, ExitCode::problems);
  EXPECT_EQ(run.json(), nlohmann::json({{"input", file},
                                        {"output", folder.path("out.ifc")},
                                        {"schema", "IFC4X3_ADD2"},
                                        {"instances", 1},
                                        {"problems", 1},
                                        {"replacedGuids", nlohmann::json::array()}}));
  const ToolRun refused = runTool({"convert", file, folder.path("./model.ifc")});
  EXPECT_EQ(refused.code, ExitCode::impossible);
  EXPECT_THAT(refused.err, HasSubstr("\nfctool: '" + file + "' isn't overwritten with itself: "));
  EXPECT_EQ(readFile(file), before);
}

TEST(ConvertCommand, ReadsStandardInputAndWritesStandardOutput) {
  const ToolRun run = runTool({"convert", "-", "-"}, false, readFile(sampleFile()));
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_EQ(run.out, readFile(sampleFile()));
  EXPECT_EQ(run.err, "-: 961 instances written as IFC4X3_ADD2\n");
  const ToolRun bad = runTool({"convert", "-", "-"}, false, "nothing");
  EXPECT_EQ(bad.code, ExitCode::impossible);
  EXPECT_EQ(bad.out, "");
  EXPECT_THAT(bad.err, HasSubstr("can't read 'standard input': it is no STEP file"));
}

TEST(ConvertCommand, KeepsTheTextsOfGuidsThatWereNoneForItsReport) {
  const ScratchFolder folder;
  const std::string file = folder.model("#1=IFCPROPERTYSET('wall 1',$,$,$,());\n");
  const nlohmann::json replaced =
      runTool({"convert", file, folder.path("out.ifc"), "--json"}).json()["replacedGuids"];
  ASSERT_EQ(replaced.size(), 1U);
  EXPECT_EQ(replaced[0]["text"], "wall 1");
  EXPECT_THAT(readFile(folder.path("out.ifc")),
              HasSubstr("#1=IFCPROPERTYSET('" + replaced[0]["guid"].get<std::string>() + "'"));
}

TEST(ConvertCommand, TakesASoundFileOfAnOlderSchemaInOneLine) {
  const ScratchFolder folder;
  const std::string file = folder.path("older.ifc");
  writeFile(file,
            "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n"
            "#1=IFCDOORSTYLE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.REVOLVING.,.WOOD.,.F.,.T.);\n"
            "#2=IFCCALENDARDATE(1,2,2003);\nENDSEC;\nEND-ISO-10303-21;\n");
  const ToolRun run = runTool({"convert", file, folder.path("out.ifc")});
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_EQ(run.err, file +
                         ": note: 3 values of IFC2X3 have no place in IFC4X3_ADD2; --verbose "
                         "lists them\n");
  const ToolRun verbose = runTool({"convert", file, folder.path("out.ifc"), "--verbose"});
  EXPECT_EQ(std::ranges::count(verbose.err, '\n'), 3);
  EXPECT_THAT(verbose.err, HasSubstr(": note: #2 IFCCALENDARDATE, line 7: "));
  EXPECT_EQ(runTool({"convert", file, file}).code, ExitCode::impossible);
}

}  // namespace
}  // namespace qor::test
