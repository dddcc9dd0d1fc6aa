#pragma once

#include <filesystem>
#include <istream>
#include <string>

#include "Fc/Data.h"
#include "Host/Cli/Console.h"
#include "Host/StepFile/StepWriter.h"

namespace qor::host::cli {

/// "-": standard input as a file to read, standard output as one to write.
bool isStandard(const std::filesystem::path& file);

/// All that is still to come.
std::string readAll(std::istream& in);

/// Writes a model to a file, whole or not at all, or to standard output.
step::WriteResult writeModel(const fc::Data& data, const std::filesystem::path& target,
                             const step::WriteOptions& options, Console& console);

/// Where a command that wrote a model to `target` tells of it: standard output, unless that is
/// where the model went.
std::ostream& reportStream(const std::filesystem::path& target, Console& console);

}  // namespace qor::host::cli
