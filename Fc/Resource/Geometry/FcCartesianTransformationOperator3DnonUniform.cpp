#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3DnonUniform.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Vector3d;

Matrix FcCartesianTransformationOperator3DnonUniform::getTransformation() const {
  const double scale = Scale() ? double(*Scale()) : 1;
  return Matrix::createScale(scale, Scale2() ? double(*Scale2()) : scale,
                             Scale3() ? double(*Scale3()) : scale) *
         frame();
}

void FcCartesianTransformationOperator3DnonUniform::transform(const Matrix& matrix) {
  const Vector3d scales = storeTransformed(matrix);
  const double tolerance = math::Epsilon::current().general;
  if (std::abs(scales.y - scales.x) > tolerance) setScale2(measure::FcReal(scales.y));
  if (std::abs(scales.z - scales.x) > tolerance) setScale3(measure::FcReal(scales.z));
}

}  // namespace qor::fc::resource::geometry
