#include "Fc/Resource/Profile/FcTrapeziumProfileDef.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

std::vector<Profile2D> FcTrapeziumProfileDef::closedProfile(const FcParams& /*params*/) const {
  const math::Point2d origin = validPosition().origin();
  const double left = origin.x - BottomXDim() / 2;
  const double bottom = origin.y - YDim() / 2;
  const double top = bottom + YDim();
  const double topLeft = left + TopXOffset();
  std::vector<Profile2D> result;
  result.emplace_back(std::vector<Profile2D::Contour>{
      {{left, bottom}, {left + BottomXDim(), bottom}, {topLeft + TopXDim(), top}, {topLeft, top}}});
  return result;
}

}  // namespace qor::fc::resource::profile
