#include "Qor/Draw/TransformationInterface.h"

namespace qor::generate::draw {

void TransformationInterface::vTransformationTranslate(const math::Vector3d& by,
                                                       math::MatrixMultiplyOrder order) {
  vTransformationMultiply(math::Matrix::createTranslation(by), order);
}

void TransformationInterface::vTransformationTranslate(const math::Point3d& to,
                                                       math::MatrixMultiplyOrder order) {
  vTransformationMultiply(math::Matrix::createTranslation(to - math::Point3d()), order);
}

}  // namespace qor::generate::draw
