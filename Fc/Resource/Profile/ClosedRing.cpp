#include "Fc/Resource/Profile/ClosedRing.h"

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcPolyline.h"

namespace qor::fc::resource::profile {

namespace {

bool isPolyline(const geometry::FcCurve& curve) {
  return curve.classId() == geometry::FcPolyline::firstClassId;
}

}  // namespace

std::optional<std::vector<math::Point2d>> closedRing(const geometry::FcCurve* curve,
                                                     const FcParams& params) {
  if (!curve) return std::nullopt;
  auto ring = curve->closedCurve2dGet(params);
  if (!ring || ring->size() < 2) return std::nullopt;
  const bool endsMeet = ring->front().isNear(ring->back());
  // A polyline gives its points whether it is closed or not.
  if (!endsMeet && isPolyline(*curve) && !curve->isClosed(params)) return std::nullopt;
  if (endsMeet) ring->pop_back();
  return ring;
}

}  // namespace qor::fc::resource::profile
