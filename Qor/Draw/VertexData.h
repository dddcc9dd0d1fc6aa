#pragma once

#include <optional>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Math/Point.h"
#include "Qor/Math/Vector.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// What a set of triangles knows of each of its vertices.
class QOR_API VertexData {
 public:
  /// Takes the lists over. Normals and texture coordinates count only when there is one for each
  /// point; otherwise they are reported by an assert and left out.
  void setVertexData(std::vector<math::Point3d> points,
                     std::optional<std::vector<math::Vector3d>> normals = {},
                     std::optional<std::vector<TextureCoordinate>> textureCoordinates = {});

  /// Metres, in the target's present frame.
  const std::vector<math::Point3d>& coordinates() const { return m_coordinates; }
  /// None: the target makes them from the triangles.
  const std::optional<std::vector<math::Vector3d>>& normals() const { return m_normals; }
  const std::optional<std::vector<TextureCoordinate>>& textureCoordinates() const {
    return m_textureCoordinates;
  }

  friend bool operator==(const VertexData&, const VertexData&) = default;

 private:
  std::vector<math::Point3d> m_coordinates;
  std::optional<std::vector<math::Vector3d>> m_normals;
  std::optional<std::vector<TextureCoordinate>> m_textureCoordinates;
};

}  // namespace qor::generate::draw
