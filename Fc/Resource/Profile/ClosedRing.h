#pragma once

#include <optional>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::fc {
class FcParams;
}
namespace qor::fc::resource::geometry {
class FcCurve;
}

namespace qor::fc::resource::profile {

/// The points of a curve that bounds an area, without a repeated end point. A polyline whose ends
/// are two points at one place (length tolerance) bounds one too. Empty for an open curve, one that
/// leaves the plane, and none.
std::optional<std::vector<math::Point2d>> closedRing(const geometry::FcCurve* curve,
                                                     const FcParams& params);

}  // namespace qor::fc::resource::profile
