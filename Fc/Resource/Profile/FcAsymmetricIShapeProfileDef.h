#pragma once

#include "Fc/Resource/Profile/FcAsymmetricIShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcAsymmetricIShapeProfileDef, Resource.Profile: an I with two flanges of their own width,
/// thickness and fillet, its web along Y, around the origin of `Position`.
class QOR_API FcAsymmetricIShapeProfileDef : public FcAsymmetricIShapeProfileDefAttributes {
 public:
  /// An absent `TopFlangeThickness` is reported and taken to be that of the bottom flange.
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Of the wider flange and the depth, around the profile's own origin whatever `Position` says.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
