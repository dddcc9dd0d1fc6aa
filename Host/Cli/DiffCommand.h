#pragma once

#include <filesystem>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct DiffOptions {
  std::filesystem::path before{};
  std::filesystem::path after{};
  bool json = false;
};

/// `fctool diff`: what is new, gone and changed in the second of two files, by content; see
/// `ModelDiff`. Both are compared in SI units. Of an attribute that refers to further entities it
/// tells the way down to the first difference.
///
/// As JSON: "before", "after", "added", "removed" (each as in `jsonLabel`) and "changed", each with
/// "before", "after" and "attributes", each of these with "name", "path", "before" and "after" (the
/// values at the end of the path; see `valueJson`).
ExitCode runDiff(const DiffOptions& options, Console& console);

}  // namespace qor::host::cli
