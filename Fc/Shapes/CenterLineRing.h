#pragma once

#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::profile {

/// The band around an open line that reaches `offset` metres to either side, with mitred corners
/// and ends cut at right angles, as a counter-clockwise ring: along the right side, back along the
/// left. Points that repeat the one before them (length tolerance) are passed over; where the line
/// folds back on itself the band is cut at right angles. Empty for fewer than two different points.
QOR_API std::vector<math::Point2d> centerLineRing(const std::vector<math::Point2d>& line,
                                                  double offset);

}  // namespace qor::fc::resource::profile
