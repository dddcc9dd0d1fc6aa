#pragma once

#include "Fc/Resource/Profile/FcIShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcIShapeProfileDef, Resource.Profile: an I with two equal flanges, its web along Y, around the
/// origin of `Position`. `FilletRadius` rounds the four corners between web and flanges.
class QOR_API FcIShapeProfileDef : public FcIShapeProfileDefAttributes {
 public:
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Of the overall dimensions; a turned `Position` doesn't turn it.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
