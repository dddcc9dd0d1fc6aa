#pragma once

#include "Fc/Resource/Profile/FcUShapeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcUShapeProfileDef, Resource.Profile: a channel with its web on the left and its flanges to the
/// right, around the origin of `Position`. `FilletRadius` rounds the two inner corners,
/// `EdgeRadius` the inner edges of the flanges, when these are thick enough for it.
class QOR_API FcUShapeProfileDef : public FcUShapeProfileDefAttributes {
 public:
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
};

}  // namespace qor::fc::resource::profile
