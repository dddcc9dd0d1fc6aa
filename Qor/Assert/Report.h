#pragma once

#include <source_location>
#include <string>

#include "Qor/Assert/Assert.h"
#include "Qor/Platform/Export.h"

namespace qor {

/// Where the code stands, as reports spell it: the qualified name of the function without its
/// parameters, and the class in it as the source.
///
///     "virtual void qor::fc::FcSphere::draw(const qor::fc::FcDrawParams&) const"
///     gives "qor::fc::FcSphere::draw" and "FcSphere".
QOR_API AssertInfo assertAt(const std::source_location& where);

/// Reports a broken rule, when asserts are enabled.
QOR_API void report(std::string message,
                    const std::source_location& where = std::source_location::current());

/// The same for a case that a generic operation has no code for.
QOR_API void reportUnimplementedCase(
    std::string message, const std::source_location& where = std::source_location::current());

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
