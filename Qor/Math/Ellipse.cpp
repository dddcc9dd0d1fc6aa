#include "Qor/Math/Ellipse.h"

#include <algorithm>
#include <cmath>

namespace qor::math::_2d {

Angle Ellipse::angleFromPoint(const Point& point) const {
  const Point local = point * m_frame.inverse();
  return Angle(std::atan2(local.y * m_semiAxis1, local.x * m_semiAxis2))
      .calculateModulusTwoTimesPI();
}

std::vector<Point> Ellipse::pointsGet(const CurveDiscretization& discretization, Angle start,
                                      Angle sweep) const {
  const double greaterAxis =
      std::max(m_semiAxis1 * m_frame.x().length(), m_semiAxis2 * m_frame.y().length());
  const std::size_t segments = discretization.numberOfArcSegments(greaterAxis, sweep);
  std::vector<Point> points;
  if (segments == 0) return points;
  points.reserve(segments + 1);
  for (std::size_t i = 0; i <= segments; ++i)
    points.push_back(
        point(start + sweep * (static_cast<double>(i) / static_cast<double>(segments))));
  return points;
}

Extent Ellipse::extent() const {
  const Vector a = m_frame.x() * m_semiAxis1, b = m_frame.y() * m_semiAxis2;
  const Vector reach(std::hypot(a.x, b.x), std::hypot(a.y, b.y));
  return {m_frame.origin() - reach, m_frame.origin() + reach};
}

}  // namespace qor::math::_2d
