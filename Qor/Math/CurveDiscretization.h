#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "Qor/Math/Arc.h"
#include "Qor/Math/Matrix.h"

namespace qor::math {

/// How finely circles are cut into straight segments.
///
/// A segment leaves its circle by no more than the chord value; a full circle has at least the
/// minimum and at most the maximum of segments, and never fewer than three. The same radius gives
/// the same count everywhere. A class that derives may choose the count of a radius; arcs follow.
class QOR_API CurveDiscretization {
 public:
  /// The chord value in metres; when it isn't positive each circle has the maximum of segments.
  CurveDiscretization(double chordValue, std::size_t minSegments, std::size_t maxSegments)
      : m_chordValue(chordValue), m_minSegments(minSegments), m_maxSegments(maxSegments) {}
  CurveDiscretization(const CurveDiscretization&) = default;
  CurveDiscretization& operator=(const CurveDiscretization&) = default;
  virtual ~CurveDiscretization() = default;

  double chordValue() const { return m_chordValue; }
  std::size_t minSegmentsOfFullCircle() const { return m_minSegments; }
  std::size_t maxSegmentsOfFullCircle() const { return m_maxSegments; }
  /// When the minimum exceeds the maximum, the maximum holds.
  void setMinMaxSegmentsOfFullCircle(std::size_t minimum, std::size_t maximum);

  /// The segments of a full circle; 0 for a radius that isn't positive and finite.
  virtual std::size_t numberOfCircleSegments(double radius) const;
  /// The part of the full circle's segments that falls to the angle, rounded up, and at least 1;
  /// that of a full circle for more than a turn. 0 for an angle of 0 or one that isn't finite, and
  /// where a full circle has none.
  virtual std::size_t numberOfArcSegments(double radius, Angle angle) const;
  /// One of the same class with the same values.
  virtual std::unique_ptr<CurveDiscretization> copy() const;

  /// Counter-clockwise from the angle `start` on, without a repeated end point. Empty when the
  /// radius has no segments.
  std::vector<Point2d> discretizeCircle(const Point2d& center, double radius,
                                        Angle start = 0) const;
  /// The same around the origin of a frame, in its XY plane.
  std::vector<Point3d> discretizeCircle(const Matrix& frame, double radius, Angle start = 0) const;

  /// From the angle `start` on, both ends included; a negative sweep runs clockwise. Empty when
  /// there are no segments.
  std::vector<Point2d> discretizeCircularArc(const Point2d& center, double radius, Angle start,
                                             Angle sweep) const;
  /// Through three points: the first and last point are those given, to the bit. Empty when no arc
  /// goes through them (`ArcFactory::fromThreePoints`).
  std::vector<Point2d> discretizeCircularArc(const Point2d& start, const Point2d& via,
                                             const Point2d& end) const;
  std::vector<Point3d> discretizeCircularArc(const Point3d& start, const Point3d& via,
                                             const Point3d& end) const;

 private:
  double m_chordValue;
  std::size_t m_minSegments;
  std::size_t m_maxSegments;
};

}  // namespace qor::math
