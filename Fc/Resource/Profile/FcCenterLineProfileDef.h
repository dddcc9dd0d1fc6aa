#pragma once

#include "Fc/Resource/Profile/FcCenterLineProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcCenterLineProfileDef, Resource.Profile: a band along an open curve, which reaches `Thickness`
/// to either side of it.
class QOR_API FcCenterLineProfileDef : public FcCenterLineProfileDefAttributes {
 public:
  /// All edges are sharp. Asserts, and nothing, without a curve and without a positive thickness.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
