#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Qor/Draw/VertexData.h"

namespace qor::generate::draw {

/// Triangles over one list of vertices, as a graphics card takes them. Indices from 0, counter-
/// clockwise seen from outside. It is moved on its road to a target; copying it copies all of it.
struct TriangulatedFaceSetOpenGL : VertexData {
  using Triangle = std::array<std::uint32_t, 3>;

  std::vector<Triangle> triangles;
  /// Edges stay sharp; otherwise, and where there are normals, the set is shaded across the edges
  /// of triangles that share vertices.
  bool hardEdges = true;

  friend bool operator==(const TriangulatedFaceSetOpenGL&,
                         const TriangulatedFaceSetOpenGL&) = default;
};

}  // namespace qor::generate::draw
