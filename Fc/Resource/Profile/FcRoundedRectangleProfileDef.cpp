#include "Fc/Resource/Profile/FcRoundedRectangleProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Resource/Profile/RectangleContour.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {

void expectRounded(bool holds, const char* message, int line) {
  if (!holds)
    report(message, "qor::fc::resource::profile::FcRoundedRectangleProfileDef::closedProfile",
           line);
}

}  // namespace

std::vector<Profile2D> FcRoundedRectangleProfileDef::closedProfile(const FcParams& params) const {
  assertThatDimensionsArePositive();
  const double tolerance = math::Epsilon::current().general;
  const double radius = RoundingRadius();
  expectRounded(
      radius > tolerance,
      "By definition of IfcPositiveLengthMeasure, RoundingRadius should be a positive distance",
      __LINE__);
  expectRounded(radius <= XDim() / 2 + tolerance,
             "By formal proposition, RoundingRadius must not be larger than XDim / 2", __LINE__);
  expectRounded(radius <= YDim() / 2 + tolerance,
             "By formal proposition, RoundingRadius must not be larger than YDim / 2", __LINE__);

  FlaggedContour contour =
      contourWithRoundedCorners(validPosition(), XDim() / 2, YDim() / 2, radius,
                                ContourOrientation::counterClockwise, params.curveDiscretization());
  std::vector<Profile2D> result;
  result.emplace_back(std::vector<Profile2D::Contour>{std::move(contour.points)},
                      Profile2D::EdgeFlags{std::move(contour.flags)});
  return result;
}

}  // namespace qor::fc::resource::profile
