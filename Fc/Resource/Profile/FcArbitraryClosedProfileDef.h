#pragma once

#include "Fc/Resource/Profile/FcArbitraryClosedProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcArbitraryClosedProfileDef, Resource.Profile: the area within a closed curve.
class QOR_API FcArbitraryClosedProfileDef : public FcArbitraryClosedProfileDefAttributes {
 public:
  /// The curve itself when it is an `FcIndexedPolyCurve`, else made of it; empty when that can't
  /// be.
  std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> getAsIndexedPolyCurves()
      const override;
  /// All edges are sharp. Empty for an open curve, one that leaves the plane, and without one.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// Moves the curve itself.
  void transform2d(const math::Matrix2d& matrix) override;
  /// That of the curve. An assert without one.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::profile
