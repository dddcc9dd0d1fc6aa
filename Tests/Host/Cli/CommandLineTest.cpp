#include <gmock/gmock.h>

#include <algorithm>

#include "Host/Cli/PrintableText.h"
#include "Tests/Host/Cli/DrawingModel.h"
#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::HasSubstr;
using testing::StartsWith;

void expectRefusal(const ToolRun& run, const std::string& message) {
  EXPECT_EQ(run.code, ExitCode::impossible);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, HasSubstr(message));
  EXPECT_THAT(run.err, StartsWith("fctool: "));
  EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
}

TEST(CommandLine, TellsInOneLineWhatItCannotDo) {
  const ScratchFolder folder;
  const std::string sample = sampleFile();
  const std::string drawn = folder.model(drawingModel);
  const std::string point = folder.model("#1=IFCCARTESIANPOINT((0.,0.,0.));\n", "point.ifc");
  const std::string out = folder.path("out.ifc");
  const std::string wall = "0TFreCQonEaOenN0vtqaQR", absent = "0TFrzzQonEaOenN0vtqaQR";
  const std::string relationship = "0TFrepQonEaOenN0vtqaQR";
  const struct {
    std::vector<std::string> arguments;
    std::string message;
  } rows[] = {
      {{}, "A subcommand is required"},
      {{"paint", sample}, "A subcommand is required"},
      {{"info"}, "FILE is required"},
      {{"info", sample, "more"}, "more"},
      {{"tree", sample, "--deep"}, "--deep"},
      {{"convert", sample}, "OUT is required"},
      {{"convert", sample, folder.path("no/folder.ifc")}, "can't write '" + folder.path("no/fo")},
      {{"convert", sample, folder.path("")}, "can't write '" + folder.path("")},
      {{"get", sample}, "[--guid,--id]"},
      {{"get", sample, "--id", "1", "--guid", "x"}, "[--guid,--id]"},
      {{"get", sample, "--id", "4711"}, "fctool: '" + sample + "' has no instance #4711\n"},
      {{"get", sample, "--id", "x"}, "fctool: 'x' is no number of an instance\n"},
      {{"get", sample, "--id", "-1"}, "'-1' is no number of an instance"},
      {{"get", sample, "--id", "1x"}, "'1x' is no number of an instance"},
      {{"get", sample, "--id", "1.5"}, "'1.5' is no number of an instance"},
      {{"get", sample, "--id", "##1"}, "'##1' is no number of an instance"},
      {{"get", sample, "--id", "99999999999999999999999"}, "999' is no number of an instance"},
      {{"get", sample, "--id", ""}, "'' is no number of an instance"},
      {{"get", sample, "--guid", absent}, "has no entity with the guid " + absent + "\n"},
      {{"get", sample, "--guid", "short"}, "fctool: 'short' is no guid, "},
      {{"extract", sample, "--guid", wall, "x", "-o", out}, "'x' is no guid, "},
      {{"extract", sample, "--guid", wall, absent, "-o", out}, "has no entity with the guid"},
      {{"extract", sample, "--guid", wall, relationship, "-o", out}, "and not of an object"},
      {{"properties", sample, "--guid", "x"}, "'x' is no guid, "},
      {{"properties", sample, "--guid", absent}, "has no entity with the guid"},
      {{"properties", sample, "--guid", relationship}, "is no object or type"},
      {{"draw", drawn, "-o", "x.dwg"}, "'x.dwg' ends in none of .glb, .obj, .png, .svg"},
      {{"draw", drawn, "-o", "/nowhere/x.glb"}, "can't write '/nowhere/x.glb'"},
      {{"draw", drawn, "--view", "top"}, "'top' is none of plan, front, side, iso"},
      {{"draw", drawn, "--size", "0x5"}, "'0x5' is no size of a picture"},
      {{"draw", drawn, "--segments", "20,10"}, "'20,10' is no least and most number of segments"},
      {{"draw", drawn, "--segments", "20"}, "'20' is no least and most number of segments"},
      {{"draw", drawn, "--chord", "0"}, "a chord of 0 mm isn't above 0"},
      {{"draw", drawn, "--id", "99"}, "'" + drawn + "' has no instance #99"},
      {{"draw", drawn, "--id", "x"}, "'x' is no number of an instance"},
      {{"draw", drawn, "--id", "5"}, "5 IFCSIUNIT is nothing that can be drawn"},
      {{"status", drawn, "--disable", "IfcNothing"}, "'IfcNothing' is neither a class nor a guid"},
      {{"status", drawn, "--disable", absent}, "no entity with the guid " + absent},
      {{"measure", point}, "has no product to draw; --id draws any one entity"},
      {{"measure", drawn, "--distance", "0000000000000000000004", "0000000000000000000001"},
       "IFCPROJECT is no product"},
  };
  for (const auto& [arguments, message] : rows) expectRefusal(runTool(arguments), message);
  EXPECT_FALSE(std::filesystem::exists(out));
  EXPECT_FALSE(std::filesystem::exists(folder.path("no")));
}

TEST(CommandLine, HelpAndVersionEndWell) {
  const ToolRun help = runTool({"--help"});
  EXPECT_EQ(help.code, ExitCode::success);
  for (const char* command : {"info", "tree", "get", "convert"})
    EXPECT_THAT(help.out, HasSubstr(command));
  EXPECT_EQ(runTool({"get", "--help"}).code, ExitCode::success);
  EXPECT_THAT(runTool({"--version"}).out, StartsWith("fctool "));
}

/// A call of each command that works on any model.
std::vector<std::vector<std::string>> callsOn(const std::string& file, const std::string& out) {
  return {{"info", file},         {"tree", file, "--json"}, {"get", file, "--id", "1"},
          {"convert", file, out}, {"properties", file},     {"diff", file, file}};
}

TEST(CommandLine, EveryCommandRefusesWhatIsNoModelInOneLine) {
  const ScratchFolder folder;
  writeFile(folder.path("empty.ifc"), "");
  writeFile(folder.path("text.ifc"), "Dear reader,\n");
  for (const char* file : {"missing.ifc", "", "empty.ifc", "text.ifc"}) {
    const std::string path = folder.path(file);
    for (const std::vector<std::string>& arguments : callsOn(path, folder.path("out.ifc")))
      expectRefusal(runTool(arguments), "can't read '" + path + "': ");
  }
  EXPECT_FALSE(std::filesystem::exists(folder.path("out.ifc")));
}

TEST(CommandLine, EveryCommandWorksOnATruncatedFileAndExitsWithOne) {
  const ScratchFolder folder;
  const std::string whole = readFile(sampleFile());
  const std::string file = folder.path("half.ifc");
  writeFile(file, whole.substr(0, whole.size() / 2));
  for (const std::vector<std::string>& arguments : callsOn(file, folder.path("out.ifc")))
    EXPECT_EQ(runTool(arguments).code, ExitCode::problems) << arguments[0];
}

TEST(CommandLine, ShowsProgressToAWatcherAloneAndTakesItAway) {
  EXPECT_EQ(runTool({"info", sampleFile()}).err, "");
  const std::string bar = runTool({"info", sampleFile()}, true).err;
  EXPECT_THAT(bar, StartsWith("\rReading ["));
  EXPECT_THAT(bar, testing::EndsWith("\r\033[K"));
}

TEST(PrintableText, KeepsUtf8AndEscapesControlCharacters) {
  EXPECT_EQ(host::cli::printable("a\tb\r\n\x1B\x7F"), "a\\tb\\r\\n\\u001B\\u007F");
  EXPECT_EQ(host::cli::printable("Tür 日 🏠 \u009B"), "Tür 日 🏠 \\u009B");
  EXPECT_EQ(host::cli::printable("bad\xFF\xC3"), "bad\uFFFD\uFFFD");
  EXPECT_EQ(host::cli::inQuotes(""), "''");
}

}  // namespace
}  // namespace qor::test
