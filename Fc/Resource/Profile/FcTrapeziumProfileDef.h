#pragma once

#include "Fc/Resource/Profile/FcTrapeziumProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcTrapeziumProfileDef, Resource.Profile: a trapezium whose bottom edge has the origin of
/// `Position` above its middle, half of `YDim` away. `Position` moves it and doesn't turn it.
class QOR_API FcTrapeziumProfileDef : public FcTrapeziumProfileDefAttributes {
 public:
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
