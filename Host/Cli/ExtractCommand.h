#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct ExtractOptions {
  std::filesystem::path input{};
  std::filesystem::path output{};
  std::vector<std::string> guids{};
  bool json = false;
};

/// `fctool extract`: writes the objects with these guids, and what they need (see `ModelExtract`),
/// as a file of IFC4X3_ADD2 in SI units. Instances keep their numbers. Nothing is written when one
/// of the guids is that of no object.
///
/// As JSON: "input", "output" and "instances" (written).
ExitCode runExtract(const ExtractOptions& options, Console& console);

}  // namespace qor::host::cli
