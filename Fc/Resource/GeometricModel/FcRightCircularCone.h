#pragma once

#include "Fc/Resource/GeometricModel/FcRightCircularConeAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcRightCircularCone, Resource.Geometric Model: the centre of its bottom is the origin of its
/// frame, the apex lies on the Z axis.
class QOR_API FcRightCircularCone : public FcRightCircularConeAttributes {
 public:
  /// The bottom as a polygon, the mantle as triangles, both in the frame of the target.
  void draw(const FcDrawParams& params) const override;
  /// Sizes follow a scaling that is the same in X and Y.
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 private:
  bool hasValidSizes() const;
};

}  // namespace qor::fc::resource::geometricmodel
