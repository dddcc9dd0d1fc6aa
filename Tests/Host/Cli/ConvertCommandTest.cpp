#include <gmock/gmock.h>

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
                                        {"problems", 1}}));
  const ToolRun refused = runTool({"convert", file, folder.path("./model.ifc")});
  EXPECT_EQ(refused.code, ExitCode::impossible);
  EXPECT_THAT(refused.err, HasSubstr("\nfctool: '" + file + "' isn't overwritten with itself: "));
  EXPECT_EQ(readFile(file), before);
}

}  // namespace
}  // namespace qor::test
