#pragma once

#include "Fc/Resource/Profile/FcArbitraryProfileDefWithVoidsAttributes.h"

namespace qor::fc::resource::profile {

/// IfcArbitraryProfileDefWithVoids, Resource.Profile: the area between a closed curve and others
/// inside it.
class QOR_API FcArbitraryProfileDefWithVoids : public FcArbitraryProfileDefWithVoidsAttributes {
 public:
  std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> getAsIndexedPolyCurves()
      const override;
  /// All edges are sharp. An inner curve that isn't closed is passed over; without a closed outer
  /// one there is an assert and nothing.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// Moves the curves themselves.
  void transform2d(const math::Matrix2d& matrix) override;
};

}  // namespace qor::fc::resource::profile
