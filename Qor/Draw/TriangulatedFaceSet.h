#pragma once

#include <array>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::generate::draw {

/// Triangles that share nothing, each by its three points, counter-clockwise seen from outside. In
/// metres.
struct TriangulatedFaceSet {
  using Triangle = std::array<math::Point3d, 3>;

  std::vector<Triangle> triangles;
};

}  // namespace qor::generate::draw
