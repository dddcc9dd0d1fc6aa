#pragma once

#include <filesystem>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct InfoOptions {
  std::filesystem::path file{};
  bool json = false;
};

/// `fctool info`: the header of a file, how many entities of which class it has, its units with
/// what makes SI of its numbers, and its problems.
///
/// As JSON: "file", "schema", "header", "entities" (their number), "classes" (name to number),
/// "units" (each with "assignment", "type", "unit", "factor" and "offset"; the last two are null
/// where numbers are left as they are), "problems" (each with "kind", "class",
/// "attribute", "count", "instance", "line" and "message"), "notes" (the same of what isn't wrong,
/// but has no place in IFC4X3_ADD2 or another form there).
ExitCode runInfo(const InfoOptions& options, Console& console);

}  // namespace qor::host::cli
