#include "Fc/Resource/Profile/RectangleCurve.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> rectangleCurve(const math::Matrix2d& frame,
                                                             double xDim, double yDim) {
  return ProfilePath(-xDim / 2, -yDim / 2)
      .line(xDim, 0)
      .line(0, yDim)
      .line(-xDim, 0)
      .closeWithLine()
      .placedAt(frame);
}

}  // namespace qor::fc::resource::profile
