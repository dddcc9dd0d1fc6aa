#pragma once

#include "Fc/Resource/GeometricConstraint/FcLinearPlacementAttributes.h"

namespace qor::fc::resource::geometricconstraint {

/// IfcLinearPlacement, Resource.Geometric Constraint: a place along a curve.
class QOR_API FcLinearPlacement : public FcLinearPlacementAttributes {
 public:
  /// The frame that the file gives as `CartesianPosition`, in that of `PlacementRelTo`; the
  /// identity without one. The place along the curve isn't evaluated.
  math::Matrix placementGet(bool relativeOnly) const override;
};

}  // namespace qor::fc::resource::geometricconstraint
