#pragma once

#include "Fc/Resource/GeometricConstraint/FcLocalPlacementAttributes.h"

namespace qor::fc::resource::geometricconstraint {

/// IfcLocalPlacement, Resource.Geometric Constraint: a frame in the frame of another placement.
class QOR_API FcLocalPlacement : public FcLocalPlacementAttributes {
 public:
  /// Walks the whole chain of `PlacementRelTo` (see `frameInProject`). A placement without
  /// `RelativePlacement` counts as the identity.
  math::Matrix placementGet(bool relativeOnly) const override;
};

}  // namespace qor::fc::resource::geometricconstraint
