#pragma once

#include <utility>
#include <vector>

#include "Qor/Math/Matrix.h"

namespace qor::math {

namespace _2d {

/// Where a point lies in relation to an area.
enum class Inclusion { outside, inside, onEdge };

/// An area in the plane within a ring of points, whose last joins the first.
class QOR_API Polygon {
 public:
  Polygon() = default;
  explicit Polygon(std::vector<Point> points) : m_points(std::move(points)) {}

  const std::vector<Point>& points() const { return m_points; }
  /// In square metres, positive for a counter-clockwise ring; 0 for fewer than three points.
  double signedArea() const;
  /// Within the length tolerance of an edge a point lies on it; else inside when a ray from it
  /// crosses the ring an odd number of times. Linear in the number of points.
  Inclusion inclusion(const Point& point) const;

 private:
  std::vector<Point> m_points;
};

}  // namespace _2d

namespace _3d {

/// A polygon in the XY plane of a frame.
class Polygon {
 public:
  Polygon() = default;
  Polygon(_2d::Polygon polygon, const Matrix& frame)
      : m_polygon(std::move(polygon)), m_frame(frame) {}

  const _2d::Polygon& polygon() const { return m_polygon; }
  const Matrix& matrix() const { return m_frame; }
  /// Its points in space.
  std::vector<Point> points() const { return m_frame.transform(m_polygon.points()); }

 private:
  _2d::Polygon m_polygon;
  Matrix m_frame;
};

}  // namespace _3d

using Polygon2d = _2d::Polygon;
using Polygon3d = _3d::Polygon;

}  // namespace qor::math
