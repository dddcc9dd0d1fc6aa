#pragma once

#include "Fc/Resource/GeometricConstraint/FcLocalPlacementAttributes.h"

namespace qor::fc::resource::geometricconstraint {

/// IfcLocalPlacement, Resource.Geometric Constraint: a frame in the frame of another placement.
class QOR_API FcLocalPlacement : public FcLocalPlacementAttributes {
 public:
  /// Walks the chain of `PlacementRelTo` up to its top and multiplies, with no recursion and no
  /// cache. A placement without `RelativePlacement` counts as the identity. A chain that turns back
  /// on itself reports an assert that names the placement at which it closes, and gives the frame
  /// up to there.
  math::Matrix placementGet(bool relativeOnly) const override;
};

}  // namespace qor::fc::resource::geometricconstraint
