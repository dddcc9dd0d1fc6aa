#pragma once

#include "Fc/Resource/Profile/FcArbitraryOpenProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcArbitraryOpenProfileDef, Resource.Profile: a curve without an area, for surfaces that sweep
/// it.
class QOR_API FcArbitraryOpenProfileDef : public FcArbitraryOpenProfileDefAttributes {
 public:
  OcCurve ocCurve(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::profile
