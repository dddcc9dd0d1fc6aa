#pragma once

#include "Fc/Resource/Profile/FcCircleHollowProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcCircleHollowProfileDef, Resource.Profile: a round tube; a disk where the wall leaves no room
/// inside.
class QOR_API FcCircleHollowProfileDef : public FcCircleHollowProfileDefAttributes {
 public:
  /// All edges are soft. A wall that isn't positive or as thick as the radius is reported.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// The outer and the inner circle around the profile's own origin.
  std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> getAsIndexedPolyCurves()
      const override;
  /// Also multiplies radius and wall by the length of the matrix's X row.
  void transform2d(const math::Matrix2d& matrix) override;
};

}  // namespace qor::fc::resource::profile
