#pragma once

#include <source_location>
#include <string>
#include <utility>

#include "Qor/Assert/Assert.h"
#include "Qor/Platform/Export.h"

namespace qor {

/// Reports a broken rule, when asserts are enabled. What the record leaves empty is told by the
/// place of the call: the qualified name of the function without its parameters,
/// "qor::fc::FcSphere::draw", the name of its file without folder and ending, and the line.
QOR_API void report(AssertInfo record,
                    const std::source_location& where = std::source_location::current());

/// The same of a plain message.
inline void report(std::string message,
                   const std::source_location& where = std::source_location::current()) {
  report(AssertInfo{.message = std::move(message)}, where);
}

/// Reports unless the rule holds; the code goes on either way.
inline void expectThat(bool holds, const char* message,
                       const std::source_location& where = std::source_location::current()) {
  if (!holds) report(message, where);
}

/// The same where the code leaves when the rule doesn't hold: gives back whether it does.
[[nodiscard]] inline bool requireThat(
    bool holds, const char* message,
    const std::source_location& where = std::source_location::current()) {
  if (!holds) report(message, where);
  return holds;
}

}  // namespace qor
