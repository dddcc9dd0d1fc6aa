#pragma once

#include "Fc/Resource/Profile/FcEllipseProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcEllipseProfileDef, Resource.Profile: an ellipse around the origin of `Position`, along its
/// axes.
class QOR_API FcEllipseProfileDef : public FcEllipseProfileDefAttributes {
 public:
  /// All edges are soft. Empty when a semi axis isn't positive.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
