#include "Fc/Resource/Profile/FcRectangleHollowProfileDef.h"

#include <numbers>
#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Profile/RectangleCurve.h"
#include "Fc/Shapes/RectangleContour.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {

FlaggedContour tubeContour(const math::Matrix2d& frame, double xHalf, double yHalf, double radius,
                           ContourOrientation orientation, const FcParams& params) {
  if (radius > math::Epsilon::current().length)
    return contourWithRoundedCorners(frame, xHalf, yHalf, radius, orientation,
                                     params.curveDiscretization());
  FlaggedContour sharp;
  sharp.points = contourWithSharpCorners(frame, xHalf, yHalf, orientation);
  sharp.flags.assign(sharp.points.size(), false);
  return sharp;
}

}  // namespace

void FcRectangleHollowProfileDef::assertThatProfileDataIsValid() const {
  const double tolerance = math::Epsilon::current().general;
  const double xHalf = XDim() / 2;
  const double yHalf = YDim() / 2;
  const double wall = WallThickness();
  const double inner = InnerFilletRadius().value_or(0.0);
  const double outer = OuterFilletRadius().value_or(0.0);
  expectThat(*this, xHalf > tolerance,
             "By definition of IfcPositiveLengthMeasure, XDim / 2 should be a positive distance");
  expectThat(*this, yHalf > tolerance,
             "By definition of IfcPositiveLengthMeasure, YDim / 2 should be a positive distance");
  expectThat(
      *this, wall > tolerance,
      "By definition of IfcPositiveLengthMeasure, WallThickness should be a positive distance");
  expectThat(
      *this, wall < xHalf - tolerance,
      "By formal proposition, the wall thickness must be strictly smaller than half of XDim");
  expectThat(
      *this, wall < yHalf - tolerance,
      "By formal proposition, the wall thickness must be strictly smaller than half of YDim");
  expectThat(
      *this, inner >= 0,
      "By definition of IfcNonNegativeLengthMeasure, InnerFilletRadius should not be negative");
  expectThat(
      *this, outer >= 0,
      "By definition of IfcNonNegativeLengthMeasure, OuterFilletRadius should not be negative");
  expectThat(
      *this, inner <= xHalf - wall + tolerance,
      "By formal proposition, InnerFilletRadius must not be larger than XDim / 2 - WallThickness");
  expectThat(
      *this, inner <= yHalf - wall + tolerance,
      "By formal proposition, InnerFilletRadius must not be larger than YDim / 2 - WallThickness");
  expectThat(*this, outer <= xHalf + tolerance,
             "By formal proposition, OuterFilletRadius must not be larger than XDim / 2");
  expectThat(*this, outer <= yHalf + tolerance,
             "By formal proposition, OuterFilletRadius must not be larger than YDim / 2");

  // How far both contours stay away, along the diagonal, from the sharp outer corner.
  const double cut = std::numbers::sqrt2 - 1;
  expectThat(*this, outer * cut < wall * std::numbers::sqrt2 + inner * cut,
             "The inner fillet intersects with (or touches) the outer contour of the profile");
}

std::vector<Profile2D> FcRectangleHollowProfileDef::closedProfile(const FcParams& params) const {
  assertThatProfileDataIsValid();
  const math::Matrix2d frame = validPosition();
  const double xHalf = XDim() / 2;
  const double yHalf = YDim() / 2;
  FlaggedContour outer = tubeContour(frame, xHalf, yHalf, OuterFilletRadius().value_or(0.0),
                                     ContourOrientation::counterClockwise, params);
  FlaggedContour inner =
      tubeContour(frame, xHalf - WallThickness(), yHalf - WallThickness(),
                  InnerFilletRadius().value_or(0.0), ContourOrientation::clockwise, params);
  std::vector<Profile2D> result;
  result.emplace_back(
      std::vector<Profile2D::Contour>{std::move(outer.points), std::move(inner.points)},
      Profile2D::EdgeFlags{std::move(outer.flags), std::move(inner.flags)});
  return result;
}

std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>>
FcRectangleHollowProfileDef::getAsIndexedPolyCurves() const {
  const math::Matrix2d frame = validPosition();
  return {rectangleCurve(frame, XDim(), YDim()),
          rectangleCurve(frame, XDim() - 2 * WallThickness(), YDim() - 2 * WallThickness())};
}

}  // namespace qor::fc::resource::profile
