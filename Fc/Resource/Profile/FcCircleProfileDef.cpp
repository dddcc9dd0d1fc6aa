#include "Fc/Resource/Profile/FcCircleProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Profile/CircleContour.h"
#include "Qor/Draw/PolygonOrientation.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {}  // namespace

std::vector<Profile2D> FcCircleProfileDef::closedProfile(const FcParams& params) const {
  if (!(Radius() > math::Epsilon::current().general))
    report(*this,
           "By definition of IfcPositiveLengthMeasure, the radius must be strictly positive");
  Profile2D::Contour ring = circleContour(validPosition(), Radius(), params.curveDiscretization());
  std::vector<Profile2D> result;
  if (ring.empty()) return result;
  if (!generate::draw::isCounterClockwisePolygon(ring))
    report(*this,
           "Assertion failed: Expect CurveDiscretization::discretizeCircle to return points in "
           "counter-clockwise order");
  result.emplace_back(std::vector<Profile2D::Contour>{std::move(ring)}, true);
  return result;
}

std::shared_ptr<geometry::FcIndexedPolyCurve> FcCircleProfileDef::generateIndexedPolycurve() const {
  return circleCurve(Radius());
}

void FcCircleProfileDef::transform2d(const math::Matrix2d& matrix) {
  FcCircleProfileDefAttributes::transform2d(matrix);
  setRadius(Radius() * matrix.x().length());
}

}  // namespace qor::fc::resource::profile
