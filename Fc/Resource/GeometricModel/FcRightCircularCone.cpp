#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"

#include <cmath>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Shapes/PrimitiveFaceSets.h"

namespace qor::fc::resource::geometricmodel {

using math::Matrix;

bool FcRightCircularCone::hasValidSizes() const {
  const double tolerance = math::Epsilon::current().length;
  return requireThat(
             *this, m_Height > tolerance,
             "By definition of IfcPositiveLengthMeasure, the height must be strictly positive") &&
         requireThat(
             *this, m_BottomRadius > tolerance,
             "By definition of IfcPositiveLengthMeasure, the bottom radius must be strictly "
             "positive");
}

void FcRightCircularCone::draw(const FcDrawParams& params) const {
  if (!hasValidSizes()) return;
  const Matrix frame = placement();
  // Around the axis the other way, so that the bottom faces away from the apex.
  const Matrix below(frame.origin(), frame.x(), frame.z() * -1);
  const std::vector<math::Point3d> ring =
      params->curveDiscretization().discretizeCircle(below, m_BottomRadius);
  if (ring.empty()) return;
  params->vPolygon(std::vector<std::vector<math::Point3d>>{ring});
  params->triangulatedFaceSet(coneMantle(ring, frame.origin() + frame.z() * m_Height));
}

std::optional<math::Extent> FcRightCircularCone::boundingBox(const FcParams& /*params*/) const {
  if (!hasValidSizes()) return std::nullopt;
  const double r = m_BottomRadius;
  return placedBox({{-r, -r, 0}, {r, r, m_Height}});
}

void FcRightCircularCone::transform(const Matrix& matrix) {
  if (!hasValidSizes()) return;
  const Matrix product = placement() * matrix;
  if (!product.isIdentity() && !product.isMirror()) {
    const double scale = product.x().length();
    if (std::abs(scale - product.y().length()) <= math::Epsilon::current().length)
      m_BottomRadius = m_BottomRadius * scale;
    else
      report(*this, "Can only have uniform scale in 2d plane");
    m_Height = m_Height * product.z().length();
  }
  setPlacement(product);
}

}  // namespace qor::fc::resource::geometricmodel
