#include "Fc/Resource/Profile/FcMirroredProfileDef.h"

namespace qor::fc::resource::profile {

std::optional<math::Matrix2d> FcMirroredProfileDef::operatorMatrix() const {
  return math::Matrix2d::createScale(-1, 1);
}

}  // namespace qor::fc::resource::profile
