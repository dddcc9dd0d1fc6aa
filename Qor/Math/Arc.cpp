#include "Qor/Math/Arc.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace qor::math::_2d {

namespace {

/// The direction of a vector from the X axis, counter-clockwise.
double directionOf(const Vector& vector) { return std::atan2(vector.y, vector.x); }

/// How much the cross product of two differences of such points may owe to the rounding of their
/// coordinates alone.
double roundingOfCross(const Point& a, const Point& b, const Point& c, double lengths) {
  const double reach = std::max(
      {std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y), std::abs(c.x), std::abs(c.y)});
  return 4 * std::numeric_limits<double>::epsilon() * reach * lengths;
}

}  // namespace

Point Arc::point(Angle fromStart) const {
  const double angle = m_start + fromStart;
  return m_center + Vector(std::cos(angle), std::sin(angle)) * m_radius;
}

std::optional<Arc> ArcFactory::fromThreePoints(const Point& start, const Point& via,
                                               const Point& end) {
  const Vector toVia = via - start, toEnd = end - start, viaToEnd = end - via;
  const double cross = toVia.cross(viaToEnd);
  const double lengths = toVia.length() + viaToEnd.length();
  if (!std::isfinite(cross) || !(std::abs(cross) > roundingOfCross(start, via, end, lengths)))
    return {};
  // Everything relative to the start, so that a place far from the origin costs no digits.
  const double a = toVia.dot(toVia), b = toEnd.dot(toEnd);
  const Vector toCenter =
      (toVia.perpendicular() * -b + toEnd.perpendicular() * a) * (-0.5 / toVia.cross(toEnd));
  // The angle at the circumference is half that at the centre.
  const double sweep = 2 * std::atan2(cross, toVia.dot(viaToEnd));
  const double radius = toCenter.length();
  if (!std::isfinite(radius)) return {};
  return Arc(start + toCenter, radius, directionOf(-toCenter), sweep);
}

std::optional<Arc> ArcFactory::fromTwoPointsRadiusDirectionAndLarge(const Point& start,
                                                                    const Point& end, double radius,
                                                                    ArcOrientation orientation,
                                                                    ArcType type) {
  const Vector chord = end - start;
  const double length = chord.length();
  const bool exists = length > 0 && std::isfinite(length) && radius > 0 && std::isfinite(radius) &&
                      length <= 2 * radius + Epsilon::current().length;
  if (!exists) return {};
  const double half = std::asin(std::min(1.0, length / (2 * radius)));
  const double turn = 2 * (type == ArcType::large ? std::numbers::pi - half : half);
  const double sweep = orientation == ArcOrientation::counterClockwise ? turn : -turn;
  // The centre lies at right angles to the chord, to the left of a small counter-clockwise arc.
  const double distance = radius * std::cos(turn / 2) * (sweep > 0 ? 1 : -1);
  const Vector toCenter = chord * 0.5 + chord.perpendicular() * (distance / length);
  return Arc(start + toCenter, std::max(radius, length / 2), directionOf(-toCenter), sweep);
}

}  // namespace qor::math::_2d
