#pragma once

#include "Fc/Resource/Profile/FcCShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcCShapeProfileDef, Resource.Profile: a channel of sheet metal with lips, open to the right,
/// around the origin of `Position`. `InternalFilletRadius` rounds the inner corners and the outer
/// ones.
class QOR_API FcCShapeProfileDef : public FcCShapeProfileDefAttributes {
 public:
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Of the overall dimensions; a turned `Position` doesn't turn it.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
