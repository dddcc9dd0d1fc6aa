#pragma once

#include <vector>

#include "Qor/Math/Point.h"

namespace qor::fc::resource::geometry {

/// A path in plan with heights: `heights` holds places along it, ascending, in X and the heights
/// there in Y, with straight lines between. The result has a point for each of the path and for
/// each of the heights, from the first place to the last; none where there is no path or no height.
///
/// `length` is that of the curve which the path stands for, by which places are measured.
std::vector<math::Point3d> gradientPath(const std::vector<math::Point3d>& path, double length,
                                        const std::vector<math::Point3d>& heights);

}  // namespace qor::fc::resource::geometry
