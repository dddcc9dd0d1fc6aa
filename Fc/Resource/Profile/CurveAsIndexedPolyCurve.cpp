#include "Fc/Resource/Profile/CurveAsIndexedPolyCurve.h"

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> curveAsIndexedPolyCurve(
    const std::shared_ptr<geometry::FcCurve>& curve) {
  if (!curve) return nullptr;
  if (auto indexed = fcCast<geometry::FcIndexedPolyCurve>(curve)) return indexed;
  // Only curves of straight lines make one of themselves, so nothing is cut into segments.
  return curve->getAsIndexedPolyCurve(FcParams(math::CurveDiscretization(0.001, 12, 96)));
}

}  // namespace qor::fc::resource::profile
