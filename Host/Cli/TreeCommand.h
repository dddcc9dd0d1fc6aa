#pragma once

#include <filesystem>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct TreeOptions {
  std::filesystem::path file{};
  bool json = false;
};

/// `fctool tree`: the projects of a file with their sites, buildings, storeys, spaces and elements,
/// one a line, two blanks deeper than what it is a part of, nested in or contained in. What stands
/// in two places is followed once.
///
/// As JSON: "file" and "nodes", a flat list in the same order, since a tree may be deeper than a
/// parser goes: each with "id", "class", "guid", "name", "depth", "parent" (its id, or null),
/// "relation" and "repeated".
ExitCode runTree(const TreeOptions& options, Console& console);

}  // namespace qor::host::cli
