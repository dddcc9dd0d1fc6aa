#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::host::targets {

/// The edges of a mesh that a person would draw: those of one triangle alone, and those where two
/// or more meet at over 25 degrees. Places within a micrometre count as one. Each edge once, as two
/// indices of `points`; triangles, three indices each, must be finite. Linear time on average, but
/// for sorting.
std::vector<std::array<std::uint32_t, 2>> featureEdges(const std::vector<math::Point3d>& points,
                                                       const std::vector<std::uint32_t>& triangles);

}  // namespace qor::host::targets
