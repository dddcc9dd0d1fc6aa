#pragma once

#include <vector>

#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Math/Extent.h"

namespace qor::math::_2d {

/// A whole ellipse in the frame whose axes are its own.
///
/// An angle on it is the parameter t of (semiAxis1 · cos t, semiAxis2 · sin t) in the frame, not
/// the direction from the centre.
class QOR_API Ellipse {
 public:
  /// Around the origin, along the axes.
  Ellipse(double semiAxis1, double semiAxis2) : Ellipse(Matrix(), semiAxis1, semiAxis2) {}
  Ellipse(const Matrix& frame, double semiAxis1, double semiAxis2)
      : m_frame(frame), m_semiAxis1(semiAxis1), m_semiAxis2(semiAxis2) {}

  Point point(Angle angle) const {
    return Point(m_semiAxis1 * std::cos(angle), m_semiAxis2 * std::sin(angle)) * m_frame;
  }
  /// The angle, in [0, 2π), whose point lies in the direction in which the ellipse shrunk to a
  /// circle sees the given point. Gives back what `point` was asked; 0 for the centre.
  Angle angleFromPoint(const Point& point) const;
  /// Both ends included, also for a full turn, whose last point is the first again; a negative
  /// sweep runs clockwise. As many segments as an arc of the greater semi axis has. Empty when that
  /// is none.
  std::vector<Point> pointsGet(const CurveDiscretization& discretization, Angle start,
                               Angle sweep) const;
  /// The box around the whole ellipse itself, not around points of it.
  Extent extent() const;

 private:
  Matrix m_frame;
  double m_semiAxis1;
  double m_semiAxis2;
};

}  // namespace qor::math::_2d
