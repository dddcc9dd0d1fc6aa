#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3D.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Vector3d;

Matrix FcCartesianTransformationOperator3D::frame() const {
  return frameAround(Axis3() ? Axis3()->vector().normalized() : Vector3d(0, 0, 1));
}

Matrix FcCartesianTransformationOperator3D::getTransformation() const {
  if (!Scale()) return frame();
  return Matrix::createScale(*Scale(), *Scale(), *Scale()) * frame();
}

Vector3d FcCartesianTransformationOperator3D::storeTransformed(const Matrix& matrix) {
  const auto axis = [](const std::shared_ptr<FcDirection>& direction, const Vector3d& otherwise) {
    return direction ? direction->vector().normalized() : otherwise;
  };
  const Matrix moved = Matrix(LocalOrigin() ? LocalOrigin()->point() : math::Point3d(),
                              axis(Axis1(), {1, 0, 0}), axis(Axis3(), {0, 0, 1})) *
                       matrix;
  setLocalOrigin(makePoint(moved.origin()));
  setAxis1(makeDirection(moved.x().normalized()));
  setAxis2(makeDirection(moved.y().normalized()));
  setAxis3(makeDirection(moved.z().normalized()));
  const Vector3d scales(moved.x().length(), moved.y().length(), moved.z().length());
  if (std::abs(1 - scales.x) > math::Epsilon::current().general)
    setScale(measure::FcReal(scales.x));
  return scales;
}

void FcCartesianTransformationOperator3D::transform(const Matrix& matrix) {
  const Vector3d scales = storeTransformed(matrix);
  const double tolerance = math::Epsilon::current().general;
  const auto differ = [&](double a, double b) { return std::abs(a - b) > tolerance; };
  expectThat(
      *this,
      !differ(scales.x, scales.y) && !differ(scales.x, scales.z) && !differ(scales.y, scales.z),
      "FcCartesianTransformationOperator3D can only be uniform. You can use "
      "FcCartesianTransformationOperator3DNonUniform");
}

}  // namespace qor::fc::resource::geometry
