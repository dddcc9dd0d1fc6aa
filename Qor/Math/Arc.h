#pragma once

#include <optional>

#include "Qor/Math/Extent.h"
#include "Qor/Math/Point.h"

namespace qor::math::_2d {

/// A part of a circle, or all of it: from a start angle on by a sweep.
class QOR_API Arc {
 public:
  /// Angles from the X axis, counter-clockwise; a negative sweep runs clockwise.
  Arc(const Point& center, double radius, Angle start, Angle sweep)
      : m_center(center), m_radius(radius), m_start(start), m_sweep(sweep) {}

  const Point& center() const { return m_center; }
  double radius() const { return m_radius; }
  Angle startAngle() const { return m_start; }
  Angle sweepAngle() const { return m_sweep; }
  Point startPoint() const { return point(0); }
  Point endPoint() const { return point(m_sweep); }
  double length() const { return std::abs(m_sweep) * m_radius; }

  /// The point of the circle at an angle from the start of the arc, counter-clockwise; with the
  /// sweep it is the end of the arc.
  Point point(Angle fromStart) const;

 private:
  Point m_center;
  double m_radius;
  Angle m_start;
  Angle m_sweep;
};

/// Which way round an arc goes from its start to its end.
enum class ArcOrientation { counterClockwise = 0, clockwise = 1 };
/// Which of the two arcs with the same ends, radius and orientation: more than half a turn or less.
enum class ArcType { large = 0, small = 1 };

class QOR_API ArcFactory {
 public:
  /// From the first point by way of the second to the third. Empty when they are collinear as far
  /// as their digits tell, when two of them agree or when one isn't finite.
  static std::optional<Arc> fromThreePoints(const Point& start, const Point& via, const Point& end);
  /// Empty when the two points agree or are further apart than the diameter by more than the length
  /// tolerance, and for a radius that isn't positive. Half a circle is of both types.
  static std::optional<Arc> fromTwoPointsRadiusDirectionAndLarge(const Point& start,
                                                                 const Point& end, double radius,
                                                                 ArcOrientation orientation,
                                                                 ArcType type);
};

}  // namespace qor::math::_2d
