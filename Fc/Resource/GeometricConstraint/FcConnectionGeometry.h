#pragma once

#include "Fc/Resource/GeometricConstraint/FcConnectionGeometryAttributes.h"

namespace qor::fc {
class FcGenerateParams;
}

namespace qor::fc::resource::geometricconstraint {

/// IfcConnectionGeometry, Resource.Geometric Constraint: where two elements meet.
class QOR_API FcConnectionGeometry : public FcConnectionGeometryAttributes {
 public:
  /// Draws its point, curve, surface or volume as it stands on the relating element; nothing when
  /// that is missing or the walk draws nothing.
  void generate(FcGenerateParams& params) const;

 protected:
  FcConnectionGeometry() = default;
};

}  // namespace qor::fc::resource::geometricconstraint
