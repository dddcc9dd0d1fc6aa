#pragma once

#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// Which way a ring without a repeated end point runs. Both are false for one without an area:
/// fewer than three points, all on a line, or a coordinate that isn't finite. Linear, no
/// allocation.
QOR_API bool isCounterClockwisePolygon(const std::vector<math::Point2d>& points);
QOR_API bool isClockwisePolygon(const std::vector<math::Point2d>& points);

}  // namespace qor::generate::draw
