#pragma once

#include <cmath>

#include "Qor/Math/Vector.h"

namespace qor::math {

namespace _2d {

/// A place in the plane, in metres.
struct Point {
  double x = 0;
  double y = 0;

  constexpr Point() = default;
  constexpr Point(double x_, double y_) : x(x_), y(y_) {}

  double distance(const Point& other) const { return (*this - other).length(); }
  /// Every coordinate is a number, and none is infinite.
  bool isFinite() const { return std::isfinite(x) && std::isfinite(y); }
  /// No coordinate differs by more than the length tolerance.
  bool isNear(const Point& other) const { return (*this - other).isNear({}); }

  constexpr Point& operator+=(const Vector& b) { return *this = *this + b; }
  friend constexpr bool operator==(const Point&, const Point&) = default;
  friend constexpr Vector operator-(const Point& a, const Point& b) {
    return {a.x - b.x, a.y - b.y};
  }
  friend constexpr Point operator+(const Point& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y};
  }
  friend constexpr Point operator-(const Point& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y};
  }
};

}  // namespace _2d

namespace _3d {

/// A place in space, in metres.
struct Point {
  double x = 0;
  double y = 0;
  double z = 0;

  constexpr Point() = default;
  constexpr Point(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}

  double distance(const Point& other) const { return (*this - other).length(); }
  /// Every coordinate is a number, and none is infinite.
  bool isFinite() const { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }
  /// No coordinate differs by more than the length tolerance.
  bool isNear(const Point& other) const { return (*this - other).isNear({}); }

  constexpr Point& operator+=(const Vector& b) { return *this = *this + b; }
  friend constexpr bool operator==(const Point&, const Point&) = default;
  friend constexpr Vector operator-(const Point& a, const Point& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
  }
  friend constexpr Point operator+(const Point& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
  }
  friend constexpr Point operator-(const Point& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
  }
};

}  // namespace _3d

using Point2d = _2d::Point;
using Point3d = _3d::Point;

}  // namespace qor::math
