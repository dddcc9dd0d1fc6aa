#pragma once

#include <optional>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::math::_2d {

/// An endless line in the plane.
class QOR_API StraightLine {
 public:
  StraightLine(const Point& point, const Vector& direction)
      : m_point(point), m_direction(direction) {}
  StraightLine(const Point& a, const Point& b) : StraightLine(a, b - a) {}

  const Point& point() const { return m_point; }
  const Vector& direction() const { return m_direction; }

  /// Empty when the lines are parallel within the angle tolerance, or one has no direction.
  std::optional<Point> intersectionPoint(const StraightLine& other) const;

 private:
  Point m_point;
  Vector m_direction;
};

}  // namespace qor::math::_2d
