#pragma once

#include <vector>

#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::profile {

/// Which way round a contour runs.
enum class ContourOrientation { clockwise = 0, counterClockwise = 1 };

/// A ring of points without a repeated end, and for each whether it lies inside an arc. An edge is
/// soft when either of its points is flagged: the ends of an arc aren't, so that the straight edges
/// between arcs stay sharp.
struct FlaggedContour {
  std::vector<math::Point2d> points{};
  std::vector<bool> flags{};
};

/// The rectangle around the origin of a frame, from the lower left corner on counter-clockwise,
/// from the upper left one clockwise. Half dimensions in metres.
QOR_API std::vector<math::Point2d> contourWithSharpCorners(const math::Matrix2d& frame,
                                                           double xHalf, double yHalf,
                                                           ContourOrientation orientation);

/// The same with each corner rounded; a circle where both halves equal the radius. Asserts for a
/// radius that isn't positive or exceeds a half, and builds what comes of it; a radius within the
/// length tolerance gives the corner itself.
QOR_API FlaggedContour contourWithRoundedCorners(const math::Matrix2d& frame, double xHalf,
                                                 double yHalf, double radius,
                                                 ContourOrientation orientation,
                                                 const math::CurveDiscretization& discretization);

}  // namespace qor::fc::resource::profile
