#include "Fc/Resource/Profile/FcCenterLineProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Shapes/CenterLineRing.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {}  // namespace

std::vector<Profile2D> FcCenterLineProfileDef::closedProfile(const FcParams& params) const {
  std::vector<Profile2D> result;
  if (!Curve()) {
    report(*this, "Expected FcCenterLineProfileDef to have a Curve");
    return result;
  }
  if (!(Thickness() > math::Epsilon::current().length)) {
    report(*this, "Expected FcCenterLineProfileDef::Thickness to be a positive number");
    return result;
  }
  const auto line = Curve()->curve2d(params, {}, {}, false);
  if (!line) return result;
  Profile2D::Contour ring = centerLineRing(*line, Thickness());
  if (!ring.empty()) result.emplace_back(std::vector<Profile2D::Contour>{std::move(ring)});
  return result;
}

}  // namespace qor::fc::resource::profile
