#include "Fc/Resource/Profile/FcRoundedRectangleProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Shapes/RectangleContour.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {}  // namespace

std::vector<Profile2D> FcRoundedRectangleProfileDef::closedProfile(const FcParams& params) const {
  XDimAssert();
  YDimAssert();
  const double tolerance = math::Epsilon::current().general;
  const double radius = RoundingRadius();
  expectThat(
      *this, radius > tolerance,
      "By definition of IfcPositiveLengthMeasure, RoundingRadius should be a positive distance");
  expectThat(*this, radius <= XDim() / 2 + tolerance,
             "By formal proposition, RoundingRadius must not be larger than XDim / 2");
  expectThat(*this, radius <= YDim() / 2 + tolerance,
             "By formal proposition, RoundingRadius must not be larger than YDim / 2");

  FlaggedContour contour =
      contourWithRoundedCorners(validPosition(), XDim() / 2, YDim() / 2, radius,
                                ContourOrientation::counterClockwise, params.curveDiscretization());
  std::vector<Profile2D> result;
  result.emplace_back(std::vector<Profile2D::Contour>{std::move(contour.points)},
                      Profile2D::EdgeFlags{std::move(contour.flags)});
  return result;
}

}  // namespace qor::fc::resource::profile
