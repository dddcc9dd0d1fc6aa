#pragma once

#include "Fc/Resource/Profile/FcRoundedRectangleProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcRoundedRectangleProfileDef, Resource.Profile: a rectangle whose corners are rounded to
/// `RoundingRadius`; a circle where that is half of both dimensions.
class QOR_API FcRoundedRectangleProfileDef : public FcRoundedRectangleProfileDefAttributes {
 public:
  /// Soft along the arcs. Dimensions that don't fit each other are reported, and the contour is
  /// built from them all the same.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
