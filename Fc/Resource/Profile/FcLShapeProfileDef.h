#pragma once

#include "Fc/Resource/Profile/FcLShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcLShapeProfileDef, Resource.Profile: an angle with its corner at the lower left, around the
/// origin of `Position`. As wide as deep where `Width` is absent. `FilletRadius` rounds the inner
/// corner, `EdgeRadius` the inner edges of the legs, when the legs are thick enough for it.
class QOR_API FcLShapeProfileDef : public FcLShapeProfileDefAttributes {
 public:
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Of the overall dimensions; a turned `Position` doesn't turn it.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
