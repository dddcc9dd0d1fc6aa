#pragma once

#include <source_location>
#include <string>

#include "Qor/Assert/Report.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

// As the operations of the same names in Qor/Assert/Report.h, of a rule that an entity breaks: the
// report names its class, and a host that knows the entity can say which one it is.

QOR_API void report(const FcBase& entity, std::string message,
                    const std::source_location& where = std::source_location::current());

inline void expectThat(const FcBase& entity, bool holds, const char* message,
                       const std::source_location& where = std::source_location::current()) {
  if (!holds) report(entity, message, where);
}

[[nodiscard]] inline bool requireThat(
    const FcBase& entity, bool holds, const char* message,
    const std::source_location& where = std::source_location::current()) {
  if (!holds) report(entity, message, where);
  return holds;
}

using qor::expectThat;
using qor::report;
using qor::requireThat;

}  // namespace qor::fc
