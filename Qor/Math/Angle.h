#pragma once

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

 private:
  double m_radians = 0;
};

}  // namespace qor::math
