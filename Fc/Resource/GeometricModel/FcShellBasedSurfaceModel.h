#pragma once

#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModelAttributes.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

namespace qor::fc::resource::geometricmodel {

/// IfcShellBasedSurfaceModel, Resource.Geometric Model: open and closed shells.
class QOR_API FcShellBasedSurfaceModel : public FcShellBasedSurfaceModelAttributes {
 public:
  /// All shells as one set when the bounds of all faces are polygons; otherwise each shell by
  /// itself.
  void draw(const FcDrawParams& params) const override;
  /// Each point once, however many shells share it.
  void transform(const math::Matrix& matrix) override;
  /// Around all shells that have a box; empty when none has.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// All faces over one list of coordinates, a point object that several share once. Empty when a
  /// bound of some face is no polygon, and where a shell is missing.
  std::optional<generate::draw::PolygonalFaceSetOpenGL> generatePolygonalFaceSet() const;
};

}  // namespace qor::fc::resource::geometricmodel
