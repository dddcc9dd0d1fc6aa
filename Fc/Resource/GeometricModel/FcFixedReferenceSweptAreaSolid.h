#pragma once

#include "Fc/Resource/GeometricModel/FcFixedReferenceSweptAreaSolidAttributes.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/Profile2D.h"

namespace qor::fc::resource::geometricmodel {

/// IfcFixedReferenceSweptAreaSolid, Resource.Geometric Model: a profile carried along a curve, its
/// X axis as near to a fixed direction as the curve allows. Trims of the curve are reported and
/// have no effect.
class QOR_API FcFixedReferenceSweptAreaSolid : public FcFixedReferenceSweptAreaSolidAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  /// Around all legs of the curve, grown by as far as the profile reaches from its origin.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// One set for each area of the profile, in the frame around this solid.
  std::vector<generate::draw::PolygonalFaceSetOpenGL> generateFaceSet(const FcParams& params) const;
  /// The same for one area, a path of points and a frame; see `sweptAlongPath`.
  static std::optional<generate::draw::PolygonalFaceSetOpenGL> generateFaceSet(
      const generate::draw::Profile2D& profile, const std::vector<math::Point3d>& path,
      const math::Vector3d& reference, const std::optional<math::Matrix>& frame, bool closed);

 private:
  bool isReadyToDraw() const;
  /// Of length 1; zero without one.
  math::Vector3d reference() const;
};

}  // namespace qor::fc::resource::geometricmodel
