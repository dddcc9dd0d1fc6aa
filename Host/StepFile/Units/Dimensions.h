#pragma once

#include <array>

#include "Qor/Unit/Dimensions.h"

namespace qor::host::step {

using unit::Dimensions;

/// Those of length, mass, time, electric current, temperature, amount of substance and luminous
/// intensity, in this order. Angles have none.
constexpr std::array<int, 7> exponentsOf(const Dimensions& d) {
  return {d.length,           d.mass, d.time, d.electricCurrent, d.temperature, d.amountOfSubstance,
          d.luminousIntensity};
}

/// Those of a product with a unit to that power.
constexpr Dimensions product(const Dimensions& a, const Dimensions& b, int power) {
  return {a.length + b.length * power,
          a.mass + b.mass * power,
          a.time + b.time * power,
          a.electricCurrent + b.electricCurrent * power,
          a.temperature + b.temperature * power,
          a.amountOfSubstance + b.amountOfSubstance * power,
          a.luminousIntensity + b.luminousIntensity * power};
}

}  // namespace qor::host::step
