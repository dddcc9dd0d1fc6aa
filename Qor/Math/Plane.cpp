#include "Qor/Math/Plane.h"

#include <algorithm>

namespace qor::math::_3d {

std::optional<Point> Plane::projectAlongVectorEitherDirection(const Point& point,
                                                              const Vector& vector) const {
  const double slope = vector.dot(m_normal);
  const double scale = vector.length() * m_normal.length();
  if (!(std::abs(slope) > Epsilon::current().angle * scale) || !std::isfinite(scale)) return {};
  return point + vector * ((m_point - point).dot(m_normal) / slope);
}

std::optional<Plane> PlaneFactory::fromThreePoints(const Point& a, const Point& b, const Point& c) {
  const Vector ab = b - a, ac = c - a, bc = c - b;
  const Vector normal = ab.cross(ac);
  const double area = normal.length();
  const double base = std::max({ab.length(), ac.length(), bc.length()});
  // The height over the longest side is the smallest of the three.
  if (!(area > Epsilon::current().length * base) || !std::isfinite(area)) return {};
  return Plane(a, normal * (1 / area));
}

}  // namespace qor::math::_3d
