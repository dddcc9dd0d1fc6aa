#include "Fc/Resource/Profile/FcRectangleProfileDef.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Profile/RectangleCurve.h"
#include "Fc/Shapes/RectangleContour.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

const measure::FcPositiveLengthMeasure& FcRectangleProfileDef::XDimAssert() const {
  expectThat(*this, XDim() > math::Epsilon::current().general,
             "By definition of IfcPositiveLengthMeasure, XDim should be a positive distance");
  return XDim();
}

const measure::FcPositiveLengthMeasure& FcRectangleProfileDef::YDimAssert() const {
  expectThat(*this, YDim() > math::Epsilon::current().general,
             "By definition of IfcPositiveLengthMeasure, YDim should be a positive distance");
  return YDim();
}

std::vector<Profile2D> FcRectangleProfileDef::closedProfile(const FcParams& /*params*/) const {
  const double xHalf = XDimAssert() / 2, yHalf = YDimAssert() / 2;
  std::vector<Profile2D> result;
  result.emplace_back(std::vector<Profile2D::Contour>{contourWithSharpCorners(
      validPosition(), xHalf, yHalf, ContourOrientation::counterClockwise)});
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
