#pragma once

#include <string>

#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometry {

/// Reports a broken rule from an operation of a geometry class, "FcCircle::curve2d", when asserts
/// are enabled.
QOR_API void reportBroken(const std::string& message, const char* operation, int line);

/// Reports unless the rule holds. Gives back whether it does, so that one line asks and reports.
inline bool expectThat(bool holds, const char* message, const char* operation, int line) {
  if (!holds) reportBroken(message, operation, line);
  return holds;
}

}  // namespace qor::fc::resource::geometry
