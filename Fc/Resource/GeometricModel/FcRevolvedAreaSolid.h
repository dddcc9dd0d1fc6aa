#pragma once

#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolidAttributes.h"
#include "Fc/Shapes/RevolvedFaceSet.h"

namespace qor::fc::resource::geometricmodel {

/// IfcRevolvedAreaSolid, Resource.Geometric Model: a profile turned right-handed around an axis in
/// its plane by `Angle`, in radians, up to a full turn.
class QOR_API FcRevolvedAreaSolid : public FcRevolvedAreaSolidAttributes {
 public:
  /// One face set for each area of the profile.
  void draw(const FcDrawParams& params) const override;
  /// Moves, turns, and scales equally in all directions; asserts, and no change, for a mirror and
  /// for other scales.
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 protected:
  /// `Axis` in the plane of the profile, direction of length 1; asserts where it isn't there or
  /// leaves the plane.
  std::optional<RevolutionAxis> axisInPlane() const;
  bool hasSweptArea() const;
  /// The box, in the frame around this solid, around `planarBox` turned in quarters up to the
  /// angle.
  math::Extent boundingBoxFromProfileExtent(const math::Extent2d& planarBox,
                                            const RevolutionAxis& axis) const;

 private:
  bool hasAngle() const;
  bool scale(double factor);
};

}  // namespace qor::fc::resource::geometricmodel
