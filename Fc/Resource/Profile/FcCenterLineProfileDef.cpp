#include "Fc/Resource/Profile/FcCenterLineProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Resource/Profile/CenterLineRing.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {

constexpr const char* kCenterLineProfile =
    "qor::fc::resource::profile::FcCenterLineProfileDef::closedProfile";

}  // namespace

std::vector<Profile2D> FcCenterLineProfileDef::closedProfile(const FcParams& params) const {
  std::vector<Profile2D> result;
  if (!Curve()) {
    report("Expected FcCenterLineProfileDef to have a Curve", kCenterLineProfile, __LINE__);
    return result;
  }
  if (!(Thickness() > math::Epsilon::current().length)) {
    report("Expected FcCenterLineProfileDef::Thickness to be a positive number", kCenterLineProfile,
           __LINE__);
    return result;
  }
  const auto line = Curve()->curve2d(params, {}, {}, false);
  if (!line) return result;
  Profile2D::Contour ring = centerLineRing(*line, Thickness());
  if (!ring.empty()) result.emplace_back(std::vector<Profile2D::Contour>{std::move(ring)});
  return result;
}

}  // namespace qor::fc::resource::profile
