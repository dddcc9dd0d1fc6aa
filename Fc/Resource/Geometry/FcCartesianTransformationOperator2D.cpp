#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2D.h"

#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2DnonUniform.h"
#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Matrix2d;
using math::MatrixMultiplyOrder;
using math::Vector2d;

namespace {

/// An operator with the scales alone.
std::shared_ptr<FcCartesianTransformationOperator2D> operatorWithScales(double first,
                                                                        double second) {
  const double tolerance = math::Epsilon::current().general;
  if (std::abs(first - second) > tolerance) {
    auto result = makeEntity<FcCartesianTransformationOperator2DnonUniform>();
    result->setScale(measure::FcReal(first));
    result->setScale2(measure::FcReal(second));
    return result;
  }
  auto result = makeEntity<FcCartesianTransformationOperator2D>();
  if (std::abs(first - 1) > tolerance) result->setScale(measure::FcReal(first));
  return result;
}

}  // namespace

std::shared_ptr<FcCartesianTransformationOperator2D>
FcCartesianTransformationOperator2D::createTransformation(const Matrix2d& matrix) {
  auto result = operatorWithScales(matrix.x().length(), matrix.y().length());
  const Vector2d x = matrix.x().normalized();
  if (!x.isNear({1, 0})) {
    result->setAxis1(makeDirection(x));
    result->setAxis2(makeDirection(matrix.y().normalized()));
  }
  result->setLocalOrigin(makePoint(matrix.origin()));
  return result;
}

Matrix FcCartesianTransformationOperator2D::getTransformation() const {
  const Matrix frame = frameAround({0, 0, 1});
  if (!Scale()) return frame;
  return Matrix::createScale(*Scale(), *Scale(), *Scale()) * frame;
}

Matrix2d FcCartesianTransformationOperator2D::getTransformation2d() const {
  const Matrix2d frame = frameAround({0, 0, 1}).toMatrix2d();
  return Scale() ? frame.scale(*Scale(), *Scale(), MatrixMultiplyOrder::left) : frame;
}

}  // namespace qor::fc::resource::geometry
