#include "Fc/Resource/Profile/FcCircleHollowProfileDef.h"

#include <algorithm>
#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Profile/CircleContour.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {}  // namespace

std::vector<Profile2D> FcCircleHollowProfileDef::closedProfile(const FcParams& params) const {
  const double inner = Radius() - WallThickness();
  expectThat(
      *this, WallThickness() > math::Epsilon::current().general,
      "By definition of IfcPositiveLengthMeasure, the wall thickness must be strictly positive");
  expectThat(*this, inner > 0,
             "By formal proposition, the wall thickness must be strictly smaller than the radius");

  std::vector<Profile2D> result = FcCircleHollowProfileDefAttributes::closedProfile(params);
  if (!(inner > math::Epsilon::current().length)) return result;
  expectThat(*this, result.size() == 1, "FcCircleProfileDef should generate one outer polygon");
  if (result.empty()) return result;
  Profile2D::Contour hole = circleContour(validPosition(), inner, params.curveDiscretization());
  std::reverse(hole.begin(), hole.end());
  result.front().contours().push_back(std::move(hole));
  return result;
}

std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>>
FcCircleHollowProfileDef::getAsIndexedPolyCurves() const {
  return {circleCurve(Radius()), circleCurve(Radius() - WallThickness())};
}

void FcCircleHollowProfileDef::transform2d(const math::Matrix2d& matrix) {
  FcCircleHollowProfileDefAttributes::transform2d(matrix);
  setWallThickness(WallThickness() * matrix.x().length());
}

}  // namespace qor::fc::resource::profile
