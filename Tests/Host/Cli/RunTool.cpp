#include "Tests/Host/Cli/RunTool.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <vector>

#include "Host/Cli/CommandLine.h"
#include "Host/Cli/Watch.h"

namespace qor::test {

ToolRun runTool(const std::vector<std::string>& arguments, bool showProgress,
                const std::string& input) {
  std::vector<const char*> argv{"fctool"};
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  std::ostringstream out;
  std::ostringstream err;
  host::cli::Watch watch(err);
  std::istringstream in(input);
  host::cli::Console console{out, err, watch, showProgress, in};
  const auto code = host::cli::runFctool(static_cast<int>(argv.size()), argv.data(), console);
  return {code, out.str(), err.str()};
}

nlohmann::json ToolRun::json() const { return nlohmann::json::parse(out); }

std::string sampleFile() { return sourceFile("Examples/sample.ifc").string(); }

ScratchFolder::ScratchFolder() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  m_folder = std::filesystem::temp_directory_path() /
             (std::string("fctool-") + test->test_suite_name() + "-" + test->name());
  std::filesystem::remove_all(m_folder);
  std::filesystem::create_directories(m_folder);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_folder, ignored);
}

std::string ScratchFolder::model(const std::string& instances, const std::string& name) const {
  writeFile(path(name), "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC4X3_ADD2'));\nENDSEC;\nDATA;\n" +
                            instances + "ENDSEC;\nEND-ISO-10303-21;\n");
  return path(name);
}

void writeFile(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

}  // namespace qor::test
