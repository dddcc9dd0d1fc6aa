#include "Host/Cli/LoadModel.h"

#include <fmt/format.h>

#include <ostream>
#include <utility>

#include "Host/Cli/ModelStreams.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/ProgressBar.h"
#include "Host/StepFile/TakeApart.h"

namespace qor::host::cli {

void TakingApart::operator()(const step::ReadResult* model) const {
  if (model->data) step::takeApart(*model->data);
  delete model;
}

namespace {

// What a sound file of an older schema loses is worth one line.
void tellNotes(const step::ReadResult& model, const std::string& name, Console& console) {
  std::uint64_t lost = 0;
  for (const step::Problem& note : model.notes) {
    const bool isLost = note.kind == step::ProblemKind::noPlace;
    if (isLost) lost += note.count;
    if (!isLost || console.verbose)
      console.err << fmt::format("{}: note: {}\n", name, printable(note.toString()));
  }
  if (lost == 0 || console.verbose) return;
  console.err << fmt::format(
      "{}: note: {} of {} no place in IFC4X3_ADD2; --verbose lists them\n", name,
      lost == 1 ? "1 value" : fmt::format("{} values", lost),
      printable(fmt::format("{} {}", model.header.schemas.front(), lost == 1 ? "has" : "have")));
}

}  // namespace

LoadedModel loadModel(const std::filesystem::path& file, Console& console, bool keepUnits) {
  step::ReadResult model;
  {
    ProgressBar bar("Reading", console);
    const step::ReadOptions options{.keepUnits = keepUnits, .progress = bar.callback()};
    model = isStandard(file) ? step::readStep(readAll(console.in), options)
                             : step::readStepFile(file, options);
  }
  const std::string name = isStandard(file) ? "standard input" : printable(file.string());
  for (const step::Problem& problem : model.problems)
    console.err << fmt::format("{}: {}\n", name, printable(problem.toString()));
  tellNotes(model, name, console);
  if (model.data) return LoadedModel(new step::ReadResult(std::move(model)));
  refuse(console, fmt::format("can't read '{}': {}", name, printable(model.failure)));
  return nullptr;
}

ExitCode exitCodeOf(const step::ReadResult& model) {
  return model.problems.empty() ? ExitCode::success : ExitCode::problems;
}

std::uint64_t countProblems(const step::ReadResult& model) {
  std::uint64_t count = 0;
  for (const step::Problem& problem : model.problems) count += problem.count;
  return count;
}

ExitCode refuse(Console& console, const std::string& why) {
  console.err << "fctool: " << why << "\n";
  return ExitCode::impossible;
}

}  // namespace qor::host::cli
