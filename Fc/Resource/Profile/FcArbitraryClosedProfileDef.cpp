#include "Fc/Resource/Profile/FcArbitraryClosedProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Profile/ClosedRing.h"
#include "Fc/Resource/Profile/CurveAsIndexedPolyCurve.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>>
FcArbitraryClosedProfileDef::getAsIndexedPolyCurves() const {
  std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> result;
  if (auto curve = curveAsIndexedPolyCurve(OuterCurve())) result.push_back(std::move(curve));
  return result;
}

std::vector<Profile2D> FcArbitraryClosedProfileDef::closedProfile(const FcParams& params) const {
  std::vector<Profile2D> result;
  if (auto ring = closedRing(OuterCurve().get(), params))
    result.emplace_back(std::vector<Profile2D::Contour>{std::move(*ring)});
  return result;
}

void FcArbitraryClosedProfileDef::transform2d(const math::Matrix2d& matrix) {
  if (OuterCurve()) OuterCurve()->transform(matrix.toMatrix3d());
}

std::optional<math::Extent2d> FcArbitraryClosedProfileDef::doGetPlanarBox(
    const FcParams& params) const {
  if (OuterCurve()) return OuterCurve()->planarBox(params);
  report(*this, "Expect OuterCurve() to be set.");
  return std::nullopt;
}

}  // namespace qor::fc::resource::profile
