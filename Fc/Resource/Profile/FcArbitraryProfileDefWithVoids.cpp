#include "Fc/Resource/Profile/FcArbitraryProfileDefWithVoids.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Profile/ClosedRing.h"
#include "Fc/Resource/Profile/CurveAsIndexedPolyCurve.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>>
FcArbitraryProfileDefWithVoids::getAsIndexedPolyCurves() const {
  auto result = FcArbitraryProfileDefWithVoidsAttributes::getAsIndexedPolyCurves();
  if (result.empty()) return result;  // the first one counts as the outer curve
  for (const auto& inner : InnerCurves())
    if (auto curve = curveAsIndexedPolyCurve(inner)) result.push_back(std::move(curve));
  return result;
}

std::vector<Profile2D> FcArbitraryProfileDefWithVoids::closedProfile(const FcParams& params) const {
  std::vector<Profile2D> result = FcArbitraryProfileDefWithVoidsAttributes::closedProfile(params);
  if (result.empty()) {
    report(*this, "Expected OuterCurve() to return a closed curve.");
    return result;
  }
  for (const auto& inner : InnerCurves())
    if (auto ring = closedRing(inner.get(), params))
      result.front().contours().push_back(std::move(*ring));
  return result;
}

void FcArbitraryProfileDefWithVoids::transform2d(const math::Matrix2d& matrix) {
  FcArbitraryProfileDefWithVoidsAttributes::transform2d(matrix);
  for (const auto& inner : InnerCurves())
    if (inner) inner->transform(matrix.toMatrix3d());
}

}  // namespace qor::fc::resource::profile
