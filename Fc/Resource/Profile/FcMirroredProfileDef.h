#pragma once

#include "Fc/Resource/Profile/FcMirroredProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcMirroredProfileDef, Resource.Profile: another profile mirrored at its Y axis. `Operator`
/// follows from the class, and what is stored there has no effect.
class QOR_API FcMirroredProfileDef : public FcMirroredProfileDefAttributes {
 protected:
  std::optional<math::Matrix2d> operatorMatrix() const override;
};

}  // namespace qor::fc::resource::profile
