#pragma once

#include "Fc/Resource/Report.h"

namespace qor::fc::resource {

/// Reports unless the rule holds. Gives back whether it does, so that one line asks and reports.
inline bool expectThat(bool holds, const char* message, const char* function, int line) {
  if (!holds) report(message, function, line);
  return holds;
}

}  // namespace qor::fc::resource
