#include <gmock/gmock.h>

#include <algorithm>

#include "Host/Cli/PrintableText.h"
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

TEST(CommandLine, WrongUsageIsToldInOneLine) {
  expectRefusal(runTool({}), "A subcommand is required");
  expectRefusal(runTool({"paint", sampleFile()}), "A subcommand is required");
  expectRefusal(runTool({"info"}), "FILE is required");
  expectRefusal(runTool({"info", sampleFile(), "more"}), "more");
  expectRefusal(runTool({"tree", sampleFile(), "--deep"}), "--deep");
  expectRefusal(runTool({"convert", sampleFile()}), "OUT is required");
  expectRefusal(runTool({"get", sampleFile()}), "[--guid,--id]");
  expectRefusal(runTool({"get", sampleFile(), "--id", "1", "--guid", "x"}), "[--guid,--id]");
}

TEST(CommandLine, HelpAndVersionEndWell) {
  const ToolRun help = runTool({"--help"});
  EXPECT_EQ(help.code, ExitCode::success);
  for (const char* command : {"info", "tree", "get", "convert"})
    EXPECT_THAT(help.out, HasSubstr(command));
  EXPECT_EQ(runTool({"get", "--help"}).code, ExitCode::success);
  EXPECT_THAT(runTool({"--version"}).out, StartsWith("fctool "));
}

TEST(CommandLine, EveryCommandRefusesWhatIsNoModelInOneLine) {
  const ScratchFolder folder;
  writeFile(folder.path("empty.ifc"), "");
  writeFile(folder.path("text.ifc"), "Dear reader,\n");
  for (const char* file : {"missing.ifc", "", "empty.ifc", "text.ifc"}) {
    const std::string path = folder.path(file);
    const std::string message = "can't read '" + path + "': ";
    expectRefusal(runTool({"info", path}), message);
    expectRefusal(runTool({"tree", path, "--json"}), message);
    expectRefusal(runTool({"get", path, "--id", "1"}), message);
    expectRefusal(runTool({"convert", path, folder.path("out.ifc")}), message);
  }
  EXPECT_FALSE(std::filesystem::exists(folder.path("out.ifc")));
}

TEST(CommandLine, EveryCommandWorksOnATruncatedFileAndExitsWithOne) {
  const ScratchFolder folder;
  const std::string whole = readFile(sampleFile());
  const std::string file = folder.path("half.ifc");
  writeFile(file, whole.substr(0, whole.size() / 2));
  EXPECT_EQ(runTool({"info", file}).code, ExitCode::problems);
  EXPECT_EQ(runTool({"tree", file}).code, ExitCode::problems);
  EXPECT_EQ(runTool({"get", file, "--id", "1"}).code, ExitCode::problems);
  EXPECT_EQ(runTool({"convert", file, folder.path("out.ifc")}).code, ExitCode::problems);
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
