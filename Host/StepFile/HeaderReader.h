#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Host/StepFile/Header.h"
#include "Host/StepFile/ProblemLog.h"

namespace qor::host::step {

struct HeaderResult {
  Header header{};
  /// Where the sections behind the header begin.
  std::size_t end = 0;
  /// Why this can't be read at all; empty when it can.
  std::string failure{};
};

/// Reads the header of a STEP file. `text` is the whole file; a header with parts missing is no
/// failure.
HeaderResult readHeader(std::string_view text, ProblemLog& log);

}  // namespace qor::host::step
