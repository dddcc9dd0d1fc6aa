#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "Host/Cli/Console.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {

/// What a run of `fctool` left behind.
struct ToolRun {
  host::cli::ExitCode code;
  std::string out;
  std::string err;

  nlohmann::json json() const;
};

/// Runs `fctool` in this process, `runTool({"info", file})`, with `input` as standard input.
ToolRun runTool(const std::vector<std::string>& arguments, bool showProgress = false,
                const std::string& input = {});

/// The sample model of the repository.
std::string sampleFile();

/// A folder of its own for one test, removed with what is in it.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  std::string path(const std::string& name) const { return (m_folder / name).string(); }
  /// Writes a file of IFC4X3_ADD2 with these instances; its path.
  std::string model(const std::string& instances, const std::string& name = "model.ifc") const;

 private:
  std::filesystem::path m_folder;
};

void writeFile(const std::string& path, const std::string& text);

}  // namespace qor::test
