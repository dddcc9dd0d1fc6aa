#pragma once

#include "Fc/Resource/Profile/FcZShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcZShapeProfileDef, Resource.Profile: a Z with its web along Y through the origin of
/// `Position`, the lower flange to the right and the upper one to the left. `FilletRadius` rounds
/// the two inner corners, `EdgeRadius` the inner edges of the flanges, when these are thick enough
/// for it.
class QOR_API FcZShapeProfileDef : public FcZShapeProfileDefAttributes {
 public:
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Of the overall dimensions; a turned `Position` doesn't turn it.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
