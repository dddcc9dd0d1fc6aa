#pragma once

#include <cstdint>
#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Math/Vector.h"

namespace qor::host::targets {

/// Cuts small ears off a plane outline: triangles of three corners in a row that lie inside, with
/// no other corner in them or on them. What it leaves has the same shape with fewer teeth. For
/// outlines of very many corners, on whose teeth a sweep-line tessellator spends time that grows
/// with the square of their number; this takes about linear time.
///
/// `outer` is shortened; each corner that goes adds three of its indices to `triangles`,
/// counter-clockwise for one who looks against `normal`. All points are finite, and `outer` runs
/// counter-clockwise. An outline that crosses itself may lose a triangle that lies outside.
void cutSmallEars(const std::vector<math::Point3d>& points,
                  const std::vector<std::vector<std::uint32_t>>& holes,
                  const math::Vector3d& normal, std::vector<std::uint32_t>& outer,
                  std::vector<std::uint32_t>& triangles);

}  // namespace qor::host::targets
