#include "Qor/Math/StraightLine.h"

namespace qor::math::_2d {

std::optional<Point> StraightLine::intersectionPoint(const StraightLine& other) const {
  const double cross = m_direction.cross(other.m_direction);
  const double scale = m_direction.length() * other.m_direction.length();
  if (!(std::abs(cross) > Epsilon::current().angle * scale) || !std::isfinite(scale)) return {};
  return m_point + m_direction * ((other.m_point - m_point).cross(other.m_direction) / cross);
}

}  // namespace qor::math::_2d
