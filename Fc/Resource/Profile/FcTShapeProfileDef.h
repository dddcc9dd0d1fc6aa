#pragma once

#include "Fc/Resource/Profile/FcTShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcTShapeProfileDef, Resource.Profile: a T with its flange on top, around the origin of
/// `Position`. `FilletRadius` rounds the corners between web and flange, `FlangeEdgeRadius` and
/// `WebEdgeRadius` the lower edges of the flange and of the web, when these are thick enough for
/// it.
class QOR_API FcTShapeProfileDef : public FcTShapeProfileDefAttributes {
 public:
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Of the overall dimensions; a turned `Position` doesn't turn it.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
