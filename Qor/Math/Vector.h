#pragma once

#include <cmath>

#include "Qor/Math/Angle.h"
#include "Qor/Math/Epsilon.h"

namespace qor::math {

namespace _2d {

/// A direction with a length in the plane.
struct Vector {
  double x = 0;
  double y = 0;

  constexpr Vector() = default;
  constexpr Vector(double x_, double y_) : x(x_), y(y_) {}

  double length() const { return std::hypot(x, y); }
  /// Turned counter-clockwise.
  Vector rotate(Angle angle) const {
    const double c = std::cos(angle), s = std::sin(angle);
    return {c * x - s * y, s * x + c * y};
  }

  friend constexpr bool operator==(const Vector&, const Vector&) = default;
  friend constexpr Vector operator*(const Vector& a, double factor) {
    return {a.x * factor, a.y * factor};
  }
};

}  // namespace _2d

namespace _3d {

/// A direction with a length in space.
struct Vector {
  double x = 0;
  double y = 0;
  double z = 0;

  constexpr Vector() = default;
  constexpr Vector(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}

  double length() const { return std::hypot(x, y, z); }
  /// Of length 1; unchanged when the length isn't finite or is at most the general tolerance.
  Vector normalized() const {
    const double l = length();
    return std::isfinite(l) && l > Epsilon::current().general ? *this * (1 / l) : *this;
  }
  /// The angle between the two, 0 to pi, whatever their lengths; 0 when one has none.
  Angle innerAngle(const Vector& other) const {
    return std::atan2(cross(other).length(), dot(other));
  }
  constexpr double dot(const Vector& other) const {
    return x * other.x + y * other.y + z * other.z;
  }
  constexpr Vector cross(const Vector& other) const {
    return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
  }
  /// No coordinate differs by more than the length tolerance.
  bool isNear(const Vector& other) const {
    const double tolerance = Epsilon::current().length;
    return std::abs(x - other.x) <= tolerance && std::abs(y - other.y) <= tolerance &&
           std::abs(z - other.z) <= tolerance;
  }

  friend constexpr bool operator==(const Vector&, const Vector&) = default;
  friend constexpr Vector operator+(const Vector& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
  }
  friend constexpr Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
  }
  friend constexpr Vector operator*(const Vector& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
  }
};

}  // namespace _3d

using Vector2d = _2d::Vector;
using Vector3d = _3d::Vector;

}  // namespace qor::math
