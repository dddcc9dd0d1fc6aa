#include "Fc/Resource/GeometricModel/FcCsgPrimitive3D.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::geometricmodel {

using math::Matrix;

void FcCsgPrimitive3D::transform(const Matrix& matrix) {
  if (matrix.isMirror()) report(*this, "Must fixed implementation if mirror should be allowed");
  setPlacement(placement() * matrix);
}

Matrix FcCsgPrimitive3D::validPosition() const {
  if (!m_Position)
    report(
        *this,
        "Position() of FcCsgPrimitive3D is not given. Will assume standard coordinate system now");
  return placement();
}

Matrix FcCsgPrimitive3D::placement() const {
  return m_Position ? m_Position->placementGet() : Matrix();
}

void FcCsgPrimitive3D::setPlacement(const Matrix& matrix) {
  m_Position = geometry::makePlacement(matrix);
}

void FcCsgPrimitive3D::applyPlacement(generate::draw::TransformationInterface& target) const {
  if (m_Position)
    target.vTransformationMultiply(m_Position->placementGet(), math::MatrixMultiplyOrder::left);
}

math::Extent FcCsgPrimitive3D::placedBox(const math::Extent& box) const {
  return box.transformExtent(placement());
}

}  // namespace qor::fc::resource::geometricmodel
