#include "Fc/Resource/Profile/FcEllipseProfileDef.h"

#include <numbers>
#include <utility>

#include "Fc/FcParams.h"
#include "Qor/Math/Ellipse.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

std::vector<Profile2D> FcEllipseProfileDef::closedProfile(const FcParams& params) const {
  std::vector<Profile2D> result;
  if (!(SemiAxis1() > 0.0) || !(SemiAxis2() > 0.0)) return result;
  Profile2D::Contour ring = math::_2d::Ellipse(validPosition(), SemiAxis1(), SemiAxis2())
                                .pointsGet(params.curveDiscretization(), 0.0, 2 * std::numbers::pi);
  if (ring.size() < 2) return result;
  ring.pop_back();  // the end of a full turn is its start
  result.emplace_back(std::vector<Profile2D::Contour>{std::move(ring)}, true);
  return result;
}

}  // namespace qor::fc::resource::profile
