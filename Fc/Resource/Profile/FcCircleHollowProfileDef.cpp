#include "Fc/Resource/Profile/FcCircleHollowProfileDef.h"

#include <algorithm>
#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Resource/Profile/CircleContour.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {

void expectTube(bool holds, const char* message, int line) {
  if (!holds)
    report(message, "qor::fc::resource::profile::FcCircleHollowProfileDef::closedProfile", line);
}

}  // namespace

std::vector<Profile2D> FcCircleHollowProfileDef::closedProfile(const FcParams& params) const {
  const double inner = Radius() - WallThickness();
  expectTube(
      WallThickness() > math::Epsilon::current().general,
      "By definition of IfcPositiveLengthMeasure, the wall thickness must be strictly positive",
      __LINE__);
  expectTube(inner > 0,
             "By formal proposition, the wall thickness must be strictly smaller than the radius",
             __LINE__);

  std::vector<Profile2D> result = FcCircleHollowProfileDefAttributes::closedProfile(params);
  if (!(inner > math::Epsilon::current().length)) return result;
  expectTube(result.size() == 1, "FcCircleProfileDef should generate one outer polygon", __LINE__);
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
