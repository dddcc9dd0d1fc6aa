#include "Qor/Math/Polygon.h"

#include <algorithm>

namespace qor::math::_2d {

namespace {

double distanceToSegment(const Point& point, const Point& a, const Point& b) {
  const Vector along = b - a, toPoint = point - a;
  const double squared = along.dot(along);
  const double fraction = squared > 0 ? std::clamp(toPoint.dot(along) / squared, 0.0, 1.0) : 0;
  return (toPoint - along * fraction).length();
}

/// The ray from the point towards positive X crosses the segment. An end on the ray counts for the
/// segment that goes up from it, so that a corner counts once or not at all.
bool crossesRay(const Point& point, const Point& a, const Point& b) {
  if ((a.y > point.y) == (b.y > point.y)) return false;
  const double side = (b - a).cross(point - a);
  return b.y > a.y ? side > 0 : side < 0;
}

}  // namespace

double Polygon::signedArea() const {
  double twice = 0;
  for (std::size_t i = 2; i < m_points.size(); ++i)
    twice += (m_points[i - 1] - m_points[0]).cross(m_points[i] - m_points[0]);
  return twice / 2;
}

Inclusion Polygon::inclusion(const Point& point) const {
  const double tolerance = Epsilon::current().length;
  bool inside = false;
  for (std::size_t i = 0; i < m_points.size(); ++i) {
    const Point &a = m_points[i], &b = m_points[i + 1 < m_points.size() ? i + 1 : 0];
    if (distanceToSegment(point, a, b) <= tolerance) return Inclusion::onEdge;
    if (crossesRay(point, a, b)) inside = !inside;
  }
  return inside ? Inclusion::inside : Inclusion::outside;
}

}  // namespace qor::math::_2d
