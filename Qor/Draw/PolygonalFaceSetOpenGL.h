#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// The place of a vertex in the images on its surface.
using TextureCoordinate = std::array<float, 2>;

/// Planar polygons over one list of points. Coordinates in metres, in the target's present frame;
/// indices from 0. It is moved on its road to a target; copying it copies all of it.
struct PolygonalFaceSetOpenGL {
  struct Face {
    /// Counter-clockwise seen from outside, without a repeated end.
    std::vector<std::uint32_t> outer{};
    /// Clockwise seen from outside.
    std::vector<std::vector<std::uint32_t>> holes{};

    friend bool operator==(const Face&, const Face&) = default;
  };

  std::vector<math::Point3d> coordinates;
  std::vector<Face> faces;
  /// One for each of the coordinates.
  std::optional<std::vector<TextureCoordinate>> textureCoordinates;
  /// Edges stay sharp; otherwise the set is shaded across the edges of faces that share points.
  bool hardEdges = true;
  /// From this face on all are shaded across their edges, whatever `hardEdges` says: what came from
  /// the second set of a merge.
  std::size_t softFacesBegin = std::numeric_limits<std::size_t>::max();

  bool isHard(std::size_t face) const { return hardEdges && face < softFacesBegin; }

  friend bool operator==(const PolygonalFaceSetOpenGL&, const PolygonalFaceSetOpenGL&) = default;
};

/// Puts the points and faces of `soft` behind those of `sharp`, and has them shaded across their
/// edges. No points are joined, so that each part keeps its shading. Where only one of the two has
/// texture coordinates, the other's are (0, 0). `soft` may be anything after.
QOR_API void mergeSharpAndSoftEdgeFaceSet(PolygonalFaceSetOpenGL& sharp,
                                          PolygonalFaceSetOpenGL&& soft);

}  // namespace qor::generate::draw
