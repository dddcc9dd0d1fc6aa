#pragma once

#include <memory>
#include <vector>

#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometry {
class FcIndexedPolyCurve;
}

namespace qor::fc::resource::profile {

/// The circle around the origin of a frame, counter-clockwise from its X axis on; empty for a
/// radius that isn't positive.
std::vector<math::Point2d> circleContour(const math::Matrix2d& frame, double radius,
                                         const math::CurveDiscretization& discretization);

/// A new curve of two half circles around the origin, counter-clockwise from the lowest point.
std::shared_ptr<geometry::FcIndexedPolyCurve> circleCurve(double radius);

}  // namespace qor::fc::resource::profile
