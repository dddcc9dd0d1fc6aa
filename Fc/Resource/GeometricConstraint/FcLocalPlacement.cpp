#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"

#include "Fc/Resource/GeometricConstraint/PlacementChain.h"

namespace qor::fc::resource::geometricconstraint {

math::Matrix FcLocalPlacement::placementGet(bool relativeOnly) const {
  return relativeOnly ? RelativePlacement().transformationGet() : frameInProject(*this);
}

}  // namespace qor::fc::resource::geometricconstraint
