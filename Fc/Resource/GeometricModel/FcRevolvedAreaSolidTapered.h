#pragma once

#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolidTaperedAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcRevolvedAreaSolidTapered, Resource.Geometric Model: a profile that becomes another one while
/// it turns. Contours and points of both must pair.
class QOR_API FcRevolvedAreaSolidTapered : public FcRevolvedAreaSolidTaperedAttributes {
 public:
  /// One face set for each pair of areas, always with both ends.
  void draw(const FcDrawParams& params) const override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  void transformProfiles(const math::Matrix2d& matrix) override;

 private:
  /// The axis when all attributes are sound; reports the first that isn't.
  std::optional<RevolutionAxis> checkedAxis() const;
};

}  // namespace qor::fc::resource::geometricmodel
