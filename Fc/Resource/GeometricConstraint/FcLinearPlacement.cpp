#include "Fc/Resource/GeometricConstraint/FcLinearPlacement.h"

#include "Fc/Resource/GeometricConstraint/PlacementChain.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

namespace qor::fc::resource::geometricconstraint {

math::Matrix FcLinearPlacement::placementGet(bool relativeOnly) const {
  if (!CartesianPosition()) return {};
  return relativeOnly ? CartesianPosition()->placementGet() : frameInProject(*this);
}

}  // namespace qor::fc::resource::geometricconstraint
