#pragma once

#include <cmath>
#include <numbers>

namespace qor::math {

/// An angle in radians. Converts both ways, so that it may be given and taken as a number.
class Angle {
 public:
  constexpr Angle() = default;
  constexpr Angle(double radians)
      : m_radians(radians) {}  // NOLINT(google-explicit-constructor): given as a number
  constexpr operator double() const {
    return m_radians;
  }  // NOLINT(google-explicit-constructor): and taken as one

  /// The same direction in [0, 2π). Not a number when the angle is infinite.
  Angle calculateModulusTwoTimesPI() const {
    constexpr double turn = 2 * std::numbers::pi;
    const double rest = std::fmod(m_radians, turn);
    const double reduced = rest < 0 ? rest + turn : rest;
    return reduced < turn ? reduced : reduced - turn;  // a tiny negative one rounds up to 2π
  }

 private:
  double m_radians = 0;
};

}  // namespace qor::math
