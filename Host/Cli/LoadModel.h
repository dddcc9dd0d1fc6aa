#pragma once

#include <filesystem>
#include <memory>

#include "Host/Cli/Console.h"
#include "Host/StepFile/StepReader.h"

namespace qor::host::cli {

/// Takes the model apart before it goes, so that entities that refer to each other in a circle go
/// with it.
struct TakingApart {
  void operator()(const step::ReadResult* model) const;
};
using LoadedModel = std::unique_ptr<const step::ReadResult, TakingApart>;

/// Reads a model, that of standard input for "-", with a progress bar, and reports its problems,
/// each in one line; what only an older schema has is one line in all, or one each when the console
/// is verbose. Its numbers are SI unless `keepUnits` asks for those of the file. Null, after a line
/// that says why, when there is nothing to go on with.
LoadedModel loadModel(const std::filesystem::path& file, Console& console, bool keepUnits = false);

/// `problems` when the file has some.
ExitCode exitCodeOf(const step::ReadResult& model);

/// All problems, those that the reader only counted included.
std::uint64_t countProblems(const step::ReadResult& model);

/// Says in one line why a command can't be done.
ExitCode refuse(Console& console, const std::string& why);

}  // namespace qor::host::cli
