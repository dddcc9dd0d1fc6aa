#pragma once

#include <filesystem>
#include <functional>
#include <ostream>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

/// Makes a file of what `write` puts into the stream. The file takes the place of an older one at
/// once and whole, or, when `write` gives false or the disk is full, not at all: then a line says
/// why, and this is false.
bool writeFile(const std::filesystem::path& path, Console& console,
               const std::function<bool(std::ostream&)>& write);

}  // namespace qor::host::cli
