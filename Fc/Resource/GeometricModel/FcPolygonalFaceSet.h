#pragma once

#include <functional>
#include <utility>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSetAttributes.h"
#include "Fc/Shapes/FaceSetWithMaterial.h"
#include "Fc/Shapes/SweepFaces.h"

namespace qor::math {
class CurveDiscretization;
}
namespace qor::fc::resource::presentationappearance {
class FcIndexedPolygonalTextureMap;
}

namespace qor::fc::resource::geometricmodel {

/// IfcPolygonalFaceSet, Resource.Geometric Model: flat polygons with holes over one list of points.
///
/// Positions in the model begin at 1 and go through `PnIndex` where it has entries; indices of what
/// is drawn begin at 0. Each fault is reported, and the smallest piece that holds it is left out.
/// All is linear in points, corners and colours.
class QOR_API FcPolygonalFaceSet : public FcPolygonalFaceSetAttributes {
 public:
  using Polygon = std::vector<std::vector<math::Point3d>>;
  using TextureMap = presentationappearance::FcIndexedPolygonalTextureMap;

  /// One set for each colour, with its material, where there is a colour map and the target takes
  /// materials; otherwise all in one.
  void draw(const FcDrawParams& params) const override;
  /// A mirror turns the corners of each face round, so that it keeps facing outward; places on
  /// textures follow.
  void transform(const math::Matrix& matrix) override;
  /// The faces of shapes as sets to draw: a planar face as one polygon, any other as triangles that
  /// leave it by no more than the chord value. Null shapes are passed over.
  static std::vector<generate::draw::PolygonalFaceSetOpenGL> getFaceSetsFromShapes(
      const std::vector<TopoDS_Shape>& shapes, const math::CurveDiscretization& discretization);
  std::optional<std::vector<generate::draw::TextureCoordinate>> getTextureCoordinates()
      const override;

  /// All faces in one set. Empty without points.
  std::optional<generate::draw::PolygonalFaceSetOpenGL> createQorPolygonalFaceSet() const;
  /// A set for each colour that faces have, in the order of the colours, each with the points that
  /// it uses. All in one, without a material, when there is no colour map or it doesn't fit.
  std::vector<FaceSetWithMaterial> createFaceSetsWithMaterials() const;
  /// Calls back for each face in order: its outer ring, then its holes. A face with a corner that
  /// can't be found is passed over. The rings live as long as the call.
  void forEachPolygon(const std::function<void(const Polygon&)>& callback) const;

  /// A new set, in no model, and the map with its texture coordinates, null when it has none.
  static std::pair<std::shared_ptr<FcPolygonalFaceSet>, std::shared_ptr<TextureMap>>
  fromQorPolygonalFaceSet(const generate::draw::PolygonalFaceSetOpenGL& faceSet);

  /// The position of the point in the list of points, which is made where there is none: of the
  /// first that is equal in x, y and z, without a tolerance, or of the point appended. Constant
  /// time on average.
  measure::FcPositiveInteger addPoint(const math::Point3d& point);

  // What bodies swept from a profile are built of: the functions of these names in `SweepFaces.h`.
  static std::vector<math::Point3d> getPointsInProfileForGeneratingFaceSet(
      const generate::draw::Profile2D& profile, std::size_t stations, bool reverse) {
    return geometricmodel::getPointsInProfileForGeneratingFaceSet(profile, stations, reverse);
  }
  static SweptFace generateBottomFace(const generate::draw::Profile2D& profile) {
    return geometricmodel::generateBottomFace(profile);
  }
  static SweptFace generateTopFace(const SweptFace& bottom, std::uint32_t offset, bool hasVoids) {
    return geometricmodel::generateTopFace(bottom, offset, hasVoids);
  }
  static void addIndexedFacesForSides(const generate::draw::Profile2D& profile, std::size_t n,
                                      std::size_t& counter, SweptFaces& hard, SweptFaces* soft) {
    geometricmodel::addIndexedFacesForSides(profile, n, counter, hard, soft);
  }

 private:
  std::optional<std::vector<FaceSetWithMaterial>> splitByColour(
      const presentationappearance::FcIndexedColourMap& map) const;
};

}  // namespace qor::fc::resource::geometricmodel
