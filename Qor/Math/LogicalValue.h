#pragma once

#include <cstdint>

namespace qor {

/// A truth value that may be unknown.
enum class LogicalValue : std::int8_t { False = 0, True = 1, Unknown = -1 };

}  // namespace qor
