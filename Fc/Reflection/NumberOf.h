#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "Fc/Reflection/LocalValue.h"

namespace qor::fc {

/// The number of a real or an integer; empty for any other kind.
inline std::optional<double> numberOf(const LocalValue& value) {
  if (const auto* real = std::get_if<double>(&value.value)) return *real;
  if (const auto* integer = std::get_if<std::int64_t>(&value.value))
    return static_cast<double>(*integer);
  return std::nullopt;
}

}  // namespace qor::fc
