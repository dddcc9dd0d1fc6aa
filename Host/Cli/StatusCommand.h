#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct StatusOptions {
  std::filesystem::path file{};
  std::filesystem::path status{};      ///< what to begin with; empty for the default
  std::vector<std::string> disable{};  ///< classes, with their subclasses, and guids
  std::filesystem::path write{};       ///< where to store it; empty for nowhere
  bool json = false;
};

/// `fctool status`: which classes, contexts and objects of a model are hidden; stores that as XML
/// for later drawings.
///
/// As JSON: "file" and "disabled", a list of what is hidden: each an object with "class" alone,
/// with "context" and "type", or with "class", "globalId" and "name".
ExitCode runStatus(const StatusOptions& options, Console& console);

}  // namespace qor::host::cli
