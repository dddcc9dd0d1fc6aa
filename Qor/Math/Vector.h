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

  double length() const { return std::sqrt(x * x + y * y); }
  /// Of length 1; unchanged when the length isn't finite or is at most the general tolerance.
  Vector normalized() const {
    const double l = length();
    return std::isfinite(l) && l > Epsilon::current().general ? *this * (1 / l) : *this;
  }
  constexpr double dot(const Vector& other) const { return x * other.x + y * other.y; }
  /// The third coordinate of the product in space: positive when `other` lies to the left.
  constexpr double cross(const Vector& other) const { return x * other.y - y * other.x; }
  /// Turned counter-clockwise by a quarter, exactly.
  constexpr Vector perpendicular() const { return {-y, x}; }
  /// Turned counter-clockwise.
  Vector rotate(Angle angle) const {
    const double c = std::cos(angle), s = std::sin(angle);
    return {c * x - s * y, s * x + c * y};
  }
  /// The angle between the two, 0 to π, whatever their lengths; 0 when one has none.
  Angle innerAngle(const Vector& other) const {
    return std::atan2(std::abs(cross(other)), dot(other));
  }
  /// How far this must turn counter-clockwise to point as `other` does, in [0, 2π), whatever their
  /// lengths; 0 when one has none.
  Angle counterClockwiseAngle(const Vector& other) const {
    return Angle(std::atan2(cross(other), dot(other))).calculateModulusTwoTimesPI();
  }
  /// No coordinate differs by more than the length tolerance.
  bool isNear(const Vector& other) const {
    const double tolerance = Epsilon::current().length;
    return std::abs(x - other.x) <= tolerance && std::abs(y - other.y) <= tolerance;
  }
  /// Same or opposite directions within the angle tolerance; false when one has no length.
  bool isParallel(const Vector& other) const {
    const double scale = length() * other.length();
    return scale > 0 && std::abs(cross(other)) <= Epsilon::current().angle * scale;
  }

  constexpr Vector& operator+=(const Vector& b) { return *this = *this + b; }
  constexpr Vector operator-() const { return {-x, -y}; }
  friend constexpr bool operator==(const Vector&, const Vector&) = default;
  friend constexpr Vector operator+(const Vector& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y};
  }
  friend constexpr Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y};
  }
  friend constexpr Vector operator*(const Vector& a, double factor) {
    return {a.x * factor, a.y * factor};
  }
  friend constexpr Vector operator*(double factor, const Vector& a) { return a * factor; }
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

  double length() const { return std::sqrt(x * x + y * y + z * z); }
  /// Of length 1; unchanged when the length isn't finite or is at most the general tolerance.
  Vector normalized() const {
    const double l = length();
    return std::isfinite(l) && l > Epsilon::current().general ? *this * (1 / l) : *this;
  }
  /// The angle between the two, 0 to π, whatever their lengths; 0 when one has none.
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
  /// Same or opposite directions within the angle tolerance; false when one has no length.
  bool isParallel(const Vector& other) const {
    const double scale = length() * other.length();
    return scale > 0 && cross(other).length() <= Epsilon::current().angle * scale;
  }
  /// The cosine between the two is within the length tolerance; false when the product of their
  /// lengths is.
  bool isPerpendicular(const Vector& other) const {
    const double tolerance = Epsilon::current().length;
    const double scale = length() * other.length();
    return scale > tolerance && std::abs(dot(other)) / scale <= tolerance;
  }

  constexpr Vector& operator+=(const Vector& b) { return *this = *this + b; }
  constexpr Vector operator-() const { return {-x, -y, -z}; }
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
  friend constexpr Vector operator*(double factor, const Vector& a) { return a * factor; }
};

}  // namespace _3d

using Vector2d = _2d::Vector;
using Vector3d = _3d::Vector;

}  // namespace qor::math
