#pragma once

#include "Fc/Resource/Profile/FcCircleProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcCircleProfileDef, Resource.Profile: a disk around the origin of `Position`.
class QOR_API FcCircleProfileDef : public FcCircleProfileDefAttributes {
 public:
  /// All edges are soft. A radius that isn't positive is reported and gives nothing.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// Two half circles around the profile's own origin: `Position` has no effect.
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// Also multiplies the radius by the length of the matrix's X row.
  void transform2d(const math::Matrix2d& matrix) override;
};

}  // namespace qor::fc::resource::profile
