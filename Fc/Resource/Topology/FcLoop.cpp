#include "Fc/Resource/Topology/FcLoop.h"

namespace qor::fc::resource::topology {

bool FcLoop::boPoints2dGet(std::vector<math::Point2d>& /*points*/) const { return false; }

std::vector<math::Point3d> FcLoop::points3dGet(const FcParams& /*params*/) const { return {}; }

}  // namespace qor::fc::resource::topology
