#pragma once

#include "Fc/Resource/GeometricConstraint/FcGridPlacementAttributes.h"

namespace qor::fc::resource::geometricconstraint {

/// IfcGridPlacement, Resource.Geometric Constraint.
class QOR_API FcGridPlacement : public FcGridPlacementAttributes {
 public:
  /// Throws `qor::exception` "Not implemented": a walk over such a placement ends by it.
  math::Matrix placementGet(bool relativeOnly) const override;
};

}  // namespace qor::fc::resource::geometricconstraint
