#pragma once

#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::math {

namespace _2d {

/// Points of the plane from those of space, whose third coordinate is dropped.
class QOR_API PointFactory {
 public:
  static constexpr Point fromPoint(const _3d::Point& point) { return {point.x, point.y}; }
  static constexpr Point fromVector(const Vector& vector) { return {vector.x, vector.y}; }
  static constexpr Point fromVector(const _3d::Vector& vector) { return {vector.x, vector.y}; }
  static std::vector<Point> fromPoints(const std::vector<_3d::Point>& points);
};

/// Vectors of the plane from what lies in space, whose third coordinate is dropped.
class VectorFactory {
 public:
  static constexpr Vector fromVector(const _3d::Vector& vector) { return {vector.x, vector.y}; }
  static constexpr Vector fromPoint(const Point& point) { return {point.x, point.y}; }
  static constexpr Vector fromPoint(const _3d::Point& point) { return {point.x, point.y}; }
};

}  // namespace _2d

namespace _3d {

/// Points of space from those of the plane, with the third coordinate that is given.
class QOR_API PointFactory {
 public:
  static constexpr Point fromPoint(const _2d::Point& point, double z = 0) {
    return {point.x, point.y, z};
  }
  static constexpr Point fromVector(const Vector& vector) { return {vector.x, vector.y, vector.z}; }
  static constexpr Point fromVector(const _2d::Vector& vector, double z = 0) {
    return {vector.x, vector.y, z};
  }
  static std::vector<Point> fromPoints(const std::vector<_2d::Point>& points, double z = 0);
};

/// Vectors of space from what lies in the plane, with the third coordinate that is given.
class VectorFactory {
 public:
  static constexpr Vector fromVector(const _2d::Vector& vector, double z = 0) {
    return {vector.x, vector.y, z};
  }
  static constexpr Vector fromPoint(const Point& point) { return {point.x, point.y, point.z}; }
  static constexpr Vector fromPoint(const _2d::Point& point, double z = 0) {
    return {point.x, point.y, z};
  }
};

}  // namespace _3d

}  // namespace qor::math
