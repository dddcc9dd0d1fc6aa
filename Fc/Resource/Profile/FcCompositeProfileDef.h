#pragma once

#include "Fc/Resource/Profile/FcCompositeProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcCompositeProfileDef, Resource.Profile: several profiles taken together. A missing member is
/// passed over; one that contains the composite itself is reported and left out.
class QOR_API FcCompositeProfileDef : public FcCompositeProfileDefAttributes {
 public:
  /// The areas of all members, in order.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// Acts on each member.
  void transform2d(const math::Matrix2d& matrix) override;
  /// Around the boxes of all members.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
