#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"

#include <utility>

#include "Fc/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/PositiveLength.h"
#include "Fc/Resource/GeometricModel/PrimitiveFaceSets.h"
#include "Qor/Draw/PolygonOrientation.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using math::Matrix;

bool FcRightCircularCylinder::hasValidSizes(const char* function) const {
  const PositiveLength check{function, math::Epsilon::current().length};
  return check(m_Height,
               "By definition of IfcPositiveLengthMeasure, the height must be strictly positive",
               __LINE__) &&
         check(m_Radius,
               "By definition of IfcPositiveLengthMeasure, the radius must be strictly positive",
               __LINE__);
}

void FcRightCircularCylinder::draw(const FcDrawParams& params) const {
  auto faceSet = buildFaceSet(FcParams(params));
  if (!faceSet) return;
  const generate::draw::TransformationGuard guard(params);
  applyPlacement(params);
  params->polygonalFaceSet(std::move(*faceSet));
}

std::optional<PolygonalFaceSetOpenGL> FcRightCircularCylinder::buildFaceSet(
    const FcParams& params) const {
  constexpr const char* function =
      "qor::fc::resource::geometricmodel::FcRightCircularCylinder::buildFaceSet";
  if (!hasValidSizes(function)) return std::nullopt;
  std::vector<math::Point2d> ring =
      params.curveDiscretization().discretizeCircle(math::Point2d(), m_Radius, 0);
  if (!generate::draw::isCounterClockwisePolygon(ring)) {
    report(
        "Assertion failed: Expect CurveDiscretization::discretizeCircle to return points in "
        "counter-clockwise order",
        function, __LINE__);
    return std::nullopt;
  }
  return cylinderFaceSet(std::move(ring), m_Height);
}

std::optional<math::Extent> FcRightCircularCylinder::boundingBox(const FcParams& /*params*/) const {
  if (!hasValidSizes("qor::fc::resource::geometricmodel::FcRightCircularCylinder::boundingBox"))
    return std::nullopt;
  const double r = m_Radius;
  return placedBox({{-r, -r, 0}, {r, r, m_Height}});
}

void FcRightCircularCylinder::transform(const Matrix& matrix) {
  if (matrix.isIdentity()) return;
  Matrix product = validPosition() * matrix;
  if (product.isMirror()) product = {product.x() * -1, product.y(), product.z(), product.origin()};
  setPlacement(product);
}

}  // namespace qor::fc::resource::geometricmodel
