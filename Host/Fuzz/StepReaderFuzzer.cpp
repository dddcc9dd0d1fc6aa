#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Host/StepFile/StepReader.h"
#include "Host/StepFile/StepWriter.h"
#include "Host/StepFile/TakeApart.h"

// Whatever bytes come in: what is read of them is written, and that reads back without a problem
// and is written the same again.

namespace {

using namespace qor::host::step;

std::string write(const ReadResult& model) {
  std::string text;
  writeStep(*model.data, text, {.header = model.header, .numbers = model.instances});
  return text;
}

void fail(const char* what, std::string_view first, std::string_view second) {
  std::fprintf(stderr, "%s\n--- first\n%.*s\n--- second\n%.*s\n", what,
               static_cast<int>(first.size()), first.data(), static_cast<int>(second.size()),
               second.data());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ReadResult model = readStep({reinterpret_cast<const char*>(data), size});
  if (!model.data) return 0;
  const std::string once = write(model);
  takeApart(*model.data);

  // The numbers are SI by now. What the units of the input left open stays open in the output, and
  // must not be applied twice.
  const ReadResult again = readStep(once, {.keepUnits = true});
  if (!again.data) fail("what was written can't be read", once, again.failure);
  for (const Problem& problem : again.problems) {
    // A reference or a value that was left out of the first one is missing in the second one too,
    // and a unit or a date that makes no sense is kept as it is, as are two roots of one guid.
    if (problem.kind != ProblemKind::missingValue && problem.kind != ProblemKind::wrongCount &&
        problem.kind != ProblemKind::unit && problem.kind != ProblemKind::badDate &&
        problem.kind != ProblemKind::duplicateGuid)
      fail("what was written has a problem", once, problem.toString());
  }
  const std::string twice = write(again);
  takeApart(*again.data);
  if (once != twice) fail("what was written comes back otherwise", once, twice);
  return 0;
}
