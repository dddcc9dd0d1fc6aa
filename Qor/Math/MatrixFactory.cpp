#include "Qor/Math/MatrixFactory.h"

#include <cmath>

namespace qor::math::_3d {

namespace {

/// At right angles to the axis: from the line through the first point along it to the point that is
/// furthest from that line. Without an axis, from the first point itself.
Vector furthestFromLine(const std::vector<Point>& points, const Vector& axis = {}) {
  Vector furthest;
  double distance = 0;
  for (const Point& point : points) {
    const Vector vector = point - points[0];
    const Vector across = vector - axis * vector.dot(axis);
    if (const double l = across.length(); !(l <= distance)) {
      furthest = across;
      distance = l;
    }
  }
  return furthest;
}

/// Twice the area of the ring as a vector.
Vector areaVector(const std::vector<Point>& points) {
  Vector sum;
  for (std::size_t i = 2; i < points.size(); ++i)
    sum += (points[i - 1] - points[0]).cross(points[i] - points[0]);
  return sum;
}

}  // namespace

std::optional<Matrix> MatrixFactory::fromPoints(const std::vector<Point>& points) {
  if (points.size() < 3) return {};
  const double tolerance = Epsilon::current().length;
  const Vector longest = furthestFromLine(points);
  const double length = longest.length();
  if (!(length > tolerance) || !std::isfinite(length)) return {};
  const Vector axis = longest * (1 / length);
  const Vector across = furthestFromLine(points, axis);
  const double width = across.length();
  if (!(width > tolerance) || !std::isfinite(width)) return {};

  // A ring that encloses next to nothing, such as a figure of eight, has no area to tell its
  // normal.
  const Vector area = areaVector(points);
  const bool encloses = area.length() > 1e-6 * length * width;
  const Vector z = encloses ? area * (1 / area.length()) : axis.cross(across) * (1 / width);
  const Vector x = axis - z * axis.dot(z);
  return Matrix(points[0], x * (1 / x.length()), z);
}

}  // namespace qor::math::_3d
