#pragma once

#include <utility>

#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSetAttributes.h"
#include "Fc/Shapes/FaceSetWithMaterial.h"

namespace qor::fc::resource::presentationappearance {
class FcIndexedTriangleTextureMap;
}

namespace qor::fc::resource::geometricmodel {

/// IfcTriangulatedFaceSet, Resource.Geometric Model: triangles over one list of points.
///
/// Positions in the model begin at 1 and go through `PnIndex` where it has entries; indices of what
/// is drawn begin at 0. Each fault is reported, and the triangle that holds it left out. All is
/// linear in points, triangles and colours.
class QOR_API FcTriangulatedFaceSet : public FcTriangulatedFaceSetAttributes {
 public:
  using TextureMap = presentationappearance::FcIndexedTriangleTextureMap;
  using WithTextureMap =
      std::pair<std::shared_ptr<FcTriangulatedFaceSet>, std::shared_ptr<TextureMap>>;

  /// One set for each colour, with its material, where there is a colour map and the target takes
  /// materials; otherwise all in one.
  void draw(const FcDrawParams& params) const override;
  /// A mirror turns the corners of each triangle round, so that it keeps facing outward; normals
  /// move as normals do and have length 1 after.
  void transform(const math::Matrix& matrix) override;
  std::optional<std::vector<generate::draw::TextureCoordinate>> getTextureCoordinates()
      const override;

  /// All triangles in one set. Empty without points.
  std::optional<generate::draw::TriangulatedFaceSetOpenGL> createQorTriangulatedFaceSet() const;
  /// A set for each colour that triangles have, in the order of the colours, each with the points
  /// that it uses and their normals. All in one, without a material, when there is no colour map or
  /// it doesn't fit.
  std::vector<TriangulatedFaceSetWithMaterial> createFaceSetsWithMaterials() const;

  /// A new set, in no model, and the map with its texture coordinates, null when it has none.
  static WithTextureMap fromQorPolygonalFaceSet(
      const generate::draw::TriangulatedFaceSetOpenGL& faceSet);
  /// The same of a set whose faces are all triangles without holes; other faces are reported and
  /// left out.
  static WithTextureMap fromQorPolygonalFaceSet(
      const generate::draw::PolygonalFaceSetOpenGL& faceSet);
  /// Some face of the set is a triangle without holes.
  static bool containsTriangularFace(const generate::draw::PolygonalFaceSetOpenGL& faceSet);

  std::size_t numberOfFaces() const { return m_CoordIndex.size(); }
  /// `Normals` as vectors.
  std::optional<std::vector<math::Vector3d>> getNormals() const;

 private:
  std::optional<std::vector<TriangulatedFaceSetWithMaterial>> splitByColour(
      const presentationappearance::FcIndexedColourMap& map) const;
};

}  // namespace qor::fc::resource::geometricmodel
