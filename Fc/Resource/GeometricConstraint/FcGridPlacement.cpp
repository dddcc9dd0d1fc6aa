#include "Fc/Resource/GeometricConstraint/FcGridPlacement.h"

#include "Qor/Assert/Exception.h"

namespace qor::fc::resource::geometricconstraint {

math::Matrix FcGridPlacement::placementGet(bool /*relativeOnly*/) const {
  throw qor::exception("Not implemented");
}

}  // namespace qor::fc::resource::geometricconstraint
