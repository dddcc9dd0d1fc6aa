#include "Qor/Math/Matrix.h"

namespace qor::math::_3d {

bool Matrix::isIdentity() const {
  return m_x.isNear({1, 0, 0}) && m_y.isNear({0, 1, 0}) && m_z.isNear({0, 0, 1}) &&
         (m_origin - Point()).isNear({});
}

}  // namespace qor::math::_3d
