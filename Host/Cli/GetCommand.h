#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

/// One of `guid` and `id` is given.
struct GetOptions {
  std::filesystem::path file{};
  std::optional<std::string> guid{};  ///< 22 characters, or 32 hexadecimal digits with hyphens
  std::optional<std::string> id{};    ///< "12" or "#12"
  bool json = false;
};

/// `fctool get`: all attributes of one entity by name, its inverse ones too. Of several entities
/// with one guid it shows the first, and names the others on `err`.
///
/// As JSON: "file", "id", "class", "guid", "name", "attributes" and "inverseAttributes", each a map
/// from names to values; see `valueJson`.
ExitCode runGet(const GetOptions& options, Console& console);

}  // namespace qor::host::cli
