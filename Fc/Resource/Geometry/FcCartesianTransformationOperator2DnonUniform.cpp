#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2DnonUniform.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Matrix2d;

Matrix FcCartesianTransformationOperator2DnonUniform::getTransformation() const {
  const double scale = Scale() ? double(*Scale()) : 1;
  return Matrix::createScale(scale, Scale2() ? double(*Scale2()) : scale, scale) *
         frameAround({0, 0, 1});
}

Matrix2d FcCartesianTransformationOperator2DnonUniform::getTransformation2d() const {
  const Matrix2d frame = frameAround({0, 0, 1}).toMatrix2d();
  if (!Scale()) return frame;
  return frame.scale(*Scale(), Scale2() ? *Scale2() : *Scale(), math::MatrixMultiplyOrder::left);
}

}  // namespace qor::fc::resource::geometry
