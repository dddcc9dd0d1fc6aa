#include "Fc/Resource/GeometricModel/FcSphere.h"

#include <algorithm>
#include <cmath>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Shapes/PrimitiveFaceSets.h"
#include "Qor/Draw/TransformationInterface.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::fc::resource::geometricmodel {

using math::Matrix;

void FcSphere::draw(const FcDrawParams& params) const {
  const generate::draw::TransformationGuard guard(params);
  applyPlacement(params);
  params->triangulatedFaceSet(getFaceSet(params->curveDiscretization()));
}

generate::draw::TriangulatedFaceSetOpenGL FcSphere::getFaceSet(
    const math::CurveDiscretization& discretization) const {
  return sphereFaceSet(m_Radius, discretization.numberOfCircleSegments(m_Radius));
}

std::optional<math::Extent> FcSphere::boundingBox(const FcParams& /*params*/) const {
  const double r = m_Radius;
  if (!(r > 0)) return std::nullopt;
  return placedBox({{-r, -r, -r}, {r, r, r}});
}

void FcSphere::transform(const Matrix& matrix) {
  const Matrix product = placement() * matrix;
  const double x = product.x().length(), y = product.y().length(), z = product.z().length();
  if (std::max({x, y, z}) - std::min({x, y, z}) > math::Epsilon::current().general) {
    report(*this, "Non uniform scale");
    return;
  }
  if (!product.isIdentity()) m_Radius = m_Radius * x;
  setPlacement(product);
}

}  // namespace qor::fc::resource::geometricmodel
