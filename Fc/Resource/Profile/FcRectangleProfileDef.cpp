#include "Fc/Resource/Profile/FcRectangleProfileDef.h"

#include "Fc/Resource/Profile/RectangleContour.h"
#include "Fc/Resource/Profile/RectangleCurve.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

namespace {

void assertPositive(double value, const char* message, int line) {
  if (!(value > math::Epsilon::current().general))
    report(message,
           "qor::fc::resource::profile::FcRectangleProfileDef::assertThatDimensionsArePositive",
           line);
}

}  // namespace

void FcRectangleProfileDef::assertThatDimensionsArePositive() const {
  assertPositive(XDim(),
                 "By definition of IfcPositiveLengthMeasure, XDim should be a positive distance",
                 __LINE__);
  assertPositive(YDim(),
                 "By definition of IfcPositiveLengthMeasure, YDim should be a positive distance",
                 __LINE__);
}

std::vector<Profile2D> FcRectangleProfileDef::closedProfile(const FcParams& /*params*/) const {
  assertThatDimensionsArePositive();
  std::vector<Profile2D> result;
  result.emplace_back(std::vector<Profile2D::Contour>{contourWithSharpCorners(
      validPosition(), XDim() / 2, YDim() / 2, ContourOrientation::counterClockwise)});
  return result;
}

std::shared_ptr<geometry::FcIndexedPolyCurve> FcRectangleProfileDef::generateIndexedPolycurve()
    const {
  return rectangleCurve(validPosition(), XDim(), YDim());
}

void FcRectangleProfileDef::transform2d(const math::Matrix2d& matrix) {
  FcRectangleProfileDefAttributes::transform2d(matrix);
  setXDim((matrix.x() * XDim()).length());
  setYDim((matrix.y() * YDim()).length());
}

std::optional<math::Extent2d> FcRectangleProfileDef::doGetPlanarBox(
    const FcParams& /*params*/) const {
  return boxAroundPosition(XDim() / 2, YDim() / 2);
}

}  // namespace qor::fc::resource::profile
