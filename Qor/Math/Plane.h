#pragma once

#include <optional>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::math::_3d {

/// An endless plane through a point, with a normal of any length.
class QOR_API Plane {
 public:
  Plane(const Point& point, const Vector& normal) : m_point(point), m_normal(normal) {}

  const Point& point() const { return m_point; }
  const Vector& normal() const { return m_normal; }

  /// In metres, positive on the side to which the normal points.
  double signedDistance(const Point& point) const {
    return (point - m_point).dot(m_normal) / m_normal.length();
  }
  /// Where the line through the point along the vector, both ways, meets the plane. Empty for a
  /// vector parallel to the plane within the angle tolerance and for one without length.
  std::optional<Point> projectAlongVectorEitherDirection(const Point& point,
                                                         const Vector& vector) const;

 private:
  Point m_point;
  Vector m_normal;
};

class QOR_API PlaneFactory {
 public:
  /// Seen from the side to which its normal, of length 1, points the three run counter-clockwise.
  /// Empty for collinear points: none is further than the length tolerance from the line through
  /// the other two.
  static std::optional<Plane> fromThreePoints(const Point& a, const Point& b, const Point& c);
};

}  // namespace qor::math::_3d
