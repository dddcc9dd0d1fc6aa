#pragma once

#include <filesystem>
#include <optional>

#include "Host/Cli/Console.h"
#include "Host/StepFile/StepReader.h"

namespace qor::host::cli {

/// Reads a model, with a progress bar, and reports its problems, each in one line. Its numbers are
/// SI unless `keepUnits` asks for those of the file. Empty, after a line that says why, when there
/// is nothing to go on with.
std::optional<step::ReadResult> loadModel(const std::filesystem::path& file, Console& console,
                                          bool keepUnits = false);

/// `problems` when the file has some.
ExitCode exitCodeOf(const step::ReadResult& model);

/// All problems, those that the reader only counted included.
std::uint64_t countProblems(const step::ReadResult& model);

/// Says in one line why a command can't be done.
ExitCode refuse(Console& console, const std::string& why);

}  // namespace qor::host::cli
