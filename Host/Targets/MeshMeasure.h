#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Qor/Math/Extent.h"
#include "Qor/Math/Point.h"

namespace qor::host::targets {

/// What can be measured of triangles.
struct MeshMeasure {
  math::Extent box;   ///< of the corners of triangles; empty for none
  double area = 0;    ///< in m²
  double volume = 0;  ///< in m³, positive when faces look outward; means nothing unless `closed`
  std::size_t triangles = 0;
  /// Each edge is used as often in one direction as in the other: the triangles bound one or
  /// several bodies without a gap. False for no triangles.
  bool closed = false;
};

/// Measures triangles, three indices of `points` each, in metres. Points nearer to each other than
/// a micrometre count as one. A triangle with a coordinate that isn't finite is left out. Linear
/// time on average; memory about that of the triangles once more.
MeshMeasure measureMesh(const std::vector<math::Point3d>& points,
                        const std::vector<std::uint32_t>& triangles);

}  // namespace qor::host::targets
