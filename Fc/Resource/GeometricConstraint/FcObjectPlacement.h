#pragma once

#include "Fc/Resource/GeometricConstraint/FcObjectPlacementAttributes.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometricconstraint {

/// IfcObjectPlacement, Resource.Geometric Constraint: where an object stands.
class QOR_API FcObjectPlacement : public FcObjectPlacementAttributes {
 public:
  /// The frame in the project, or with `relativeOnly` that in the frame of `PlacementRelTo`. The
  /// base form gives the identity.
  virtual math::Matrix placementGet(bool relativeOnly) const;

 protected:
  FcObjectPlacement() = default;
};

}  // namespace qor::fc::resource::geometricconstraint
