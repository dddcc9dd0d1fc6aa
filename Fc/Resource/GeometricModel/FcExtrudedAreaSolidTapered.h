#pragma once

#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTaperedAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcExtrudedAreaSolidTapered, Resource.Geometric Model: a profile that becomes another one on its
/// way. Contours and points of both must pair; arcs of the end are cut into as many segments as
/// those of the start.
class QOR_API FcExtrudedAreaSolidTapered : public FcExtrudedAreaSolidTaperedAttributes {
 public:
  /// A set for the soft faces and one for the hard ones of each pair of areas.
  void draw(const FcDrawParams& params) const override;
  /// That of an extrusion of both profiles' boxes together.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  void transformProfiles(const math::Matrix2d& matrix) override;

  /// What is drawn for each pair of areas, in the frame of `Position`: one body each.
  std::vector<std::vector<generate::draw::PolygonalFaceSetOpenGL>> faceSets(
      const FcParams& params) const;
  /// The body between `start` and where `extrusion` takes `end`; see `taperedExtrudedFaceSets`.
  static std::vector<generate::draw::PolygonalFaceSetOpenGL> faceSetFromExtrudedTapered(
      generate::draw::Profile2D& start, generate::draw::Profile2D& end,
      const math::Vector3d& extrusion);

 private:
  bool isReadyToDraw() const;
};

}  // namespace qor::fc::resource::geometricmodel
