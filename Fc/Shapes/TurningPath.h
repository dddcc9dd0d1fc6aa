#pragma once

#include <vector>

#include "Qor/Math/CurveDiscretization.h"

namespace qor::fc::resource::geometry {

/// A line in the plane whose curvature grows evenly with its length: a straight line, a circle, a
/// clothoid. Its direction at the length s is `turn` · s + `twist` · s², in radians.
struct TurningCurve {
  double turn = 0;   ///< the curvature at length 0, in 1/m, positive to the left
  double twist = 0;  ///< half of what the curvature gains per metre
};

/// The part of the curve from the length `start` on over `length` metres, against its direction for
/// a negative one, laid so that it begins at the origin in the direction of the X axis. Both ends
/// included; the points lie at equal distances along the curve, to 1e-9 of its length. One point
/// for no length; none for numbers that aren't finite.
std::vector<math::Point2d> turningPath(const TurningCurve& curve, double start, double length,
                                       const math::CurveDiscretization& discretization);

}  // namespace qor::fc::resource::geometry
