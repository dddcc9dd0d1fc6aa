#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"

#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Shapes/PrimitiveFaceSets.h"
#include "Qor/Draw/PolygonOrientation.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using math::Matrix;

bool FcRightCircularCylinder::hasValidSizes() const {
  const double tolerance = math::Epsilon::current().length;
  return requireThat(
             *this, m_Height > tolerance,
             "By definition of IfcPositiveLengthMeasure, the height must be strictly positive") &&
         requireThat(
             *this, m_Radius > tolerance,
             "By definition of IfcPositiveLengthMeasure, the radius must be strictly positive");
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
  if (!hasValidSizes()) return std::nullopt;
  std::vector<math::Point2d> ring =
      params.curveDiscretization().discretizeCircle(math::Point2d(), m_Radius, 0);
  if (!generate::draw::isCounterClockwisePolygon(ring)) {
    report(*this,
           "Assertion failed: Expect CurveDiscretization::discretizeCircle to return points in "
           "counter-clockwise order");
    return std::nullopt;
  }
  return cylinderFaceSet(std::move(ring), m_Height);
}

std::optional<math::Extent> FcRightCircularCylinder::boundingBox(const FcParams& /*params*/) const {
  if (!hasValidSizes()) return std::nullopt;
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
