#include "Fc/Resource/Profile/FcParameterizedProfileDef.h"

#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;
using math::Extent2d;
using math::Matrix2d;
using math::Point2d;
using math::Vector2d;

std::shared_ptr<geometry::FcIndexedPolyCurve> FcParameterizedProfileDef::generateIndexedPolycurve()
    const {
  assertNotImplemented("generateIndexedPolycurve() not implemented for class: ", *this);
  return makeEntity<geometry::FcIndexedPolyCurve>();
}

Matrix2d FcParameterizedProfileDef::validPosition() const {
  return Position() ? Position()->placementGet().toMatrix2d() : Matrix2d();
}

std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>>
FcParameterizedProfileDef::getAsIndexedPolyCurves() const {
  return {generateIndexedPolycurve()};
}

std::vector<Profile2D> FcParameterizedProfileDef::closedProfile(const FcParams& params) const {
  auto profile =
      generateIndexedPolycurve()->closed2dCurveWithEdgeInformation(params, {}, {}, false);
  std::vector<Profile2D> result;
  if (profile) result.push_back(std::move(*profile));
  return result;
}

void FcParameterizedProfileDef::transform2d(const Matrix2d& matrix) {
  if (matrix.isIdentity()) return;
  if (!Position()) {
    const auto location = makeEntity<geometry::FcCartesianPoint>();
    location->setCoordinates({0.0, 0.0});
    setPosition(makeEntity<geometry::FcAxis2Placement2D>());
    Position()->setLocation(location);
  }
  Position()->transform2d(matrix);
}

Extent2d FcParameterizedProfileDef::boxAroundPosition(double xHalf, double yHalf) const {
  const Point2d origin = validPosition().origin();
  return Extent2d(origin - Vector2d(xHalf, yHalf), origin + Vector2d(xHalf, yHalf));
}

}  // namespace qor::fc::resource::profile
