#include "Fc/Resource/GeometricConstraint/FcObjectPlacement.h"

namespace qor::fc::resource::geometricconstraint {

math::Matrix FcObjectPlacement::placementGet(bool /*relativeOnly*/) const { return {}; }

}  // namespace qor::fc::resource::geometricconstraint
