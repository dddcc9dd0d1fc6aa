#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::host::targets {

/// Cuts plane polygons with holes into triangles.
///
/// Convex polygons are cut as a fan, the ends of pipes as a band; all others go, large ones without their teeth, to a sweep-line
/// tessellator that takes whatever real files hold: concave outlines, holes in either direction and
/// touching the outline, points that coincide or lie on a line, outlines that cross themselves
/// (inside is what an odd number of turns runs round). Every edge of the polygon is an edge of a
/// triangle, in the same direction, so that a closed set of faces stays closed.
///
/// Holds scratch memory: make one for many polygons. Not for several threads at once.
class Triangulator {
 public:
  using Indices = std::vector<std::uint32_t>;

  Triangulator();
  ~Triangulator();
  Triangulator(const Triangulator&) = delete;
  Triangulator& operator=(const Triangulator&) = delete;

  /// Appends to `triangles` three indices of `points` for each triangle, counter-clockwise for one
  /// who sees `outer` counter-clockwise. Where edges cross, a point is appended to `points`.
  ///
  /// All indices must be within `points`. An outline of fewer than three points, or with a
  /// coordinate that isn't finite, gives nothing; one without an area a fan without an area.
  void triangulate(std::vector<math::Point3d>& points, const Indices& outer,
                   const std::vector<Indices>& holes, Indices& triangles);

 private:
  class Sweep;
  bool addConvex(const std::vector<math::Point3d>& points, const Indices& outer,
                 Indices& triangles) const;

  std::unique_ptr<Sweep> m_sweep;
};

}  // namespace qor::host::targets
