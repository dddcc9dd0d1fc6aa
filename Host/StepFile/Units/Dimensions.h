#pragma once

#include <array>
#include <cstddef>

namespace qor::host::step {

/// The exponents of length, mass, time, electric current, temperature, amount of substance and
/// luminous intensity. Angles have none.
struct Dimensions {
  std::array<int, 7> exponents{};

  constexpr Dimensions() = default;
  constexpr Dimensions(int length, int mass = 0, int time = 0, int current = 0, int temperature = 0,
                       int amount = 0, int luminous = 0)
      : exponents{length, mass, time, current, temperature, amount, luminous} {}

  /// Those of a product with a unit to that power.
  constexpr void multiply(const Dimensions& other, int exponent) {
    for (std::size_t i = 0; i < exponents.size(); ++i)
      exponents[i] += other.exponents[i] * exponent;
  }

  friend constexpr bool operator==(const Dimensions&, const Dimensions&) = default;
};

}  // namespace qor::host::step
