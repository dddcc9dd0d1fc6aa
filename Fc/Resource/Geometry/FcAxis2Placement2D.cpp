#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"

#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Matrix2d;
using math::Vector2d;
using math::Vector3d;

Matrix FcAxis2Placement2D::placementGet() const {
  const Vector3d z(0, 0, 1);
  Vector3d x(1, 0, 0);
  if (RefDirection()) x = z.cross(RefDirection()->vector().normalized()).cross(z);
  return Matrix(location(), x, z);
}

void FcAxis2Placement2D::placementSet(const Matrix& matrix) {
  writeLocation(matrix.origin());
  if (matrix.x().isNear({1, 0, 0}))
    clearRefDirection();
  else if (RefDirection())
    RefDirection()->setVector(matrix.x());
  else
    setRefDirection(makeDirection(matrix.x()));
}

Matrix2d FcAxis2Placement2D::transformation2dGet() const {
  const Matrix2d translation = FcPlacement::transformation2dGet();
  if (!RefDirection()) return translation;
  return {translation.origin(), RefDirection()->vector2d().normalized()};
}

void FcAxis2Placement2D::transform(const Matrix& matrix) { placementSet(placementGet() * matrix); }

void FcAxis2Placement2D::transform2d(const Matrix2d& matrix) {
  if (matrix.isIdentity()) return;
  FcPlacement::transform2d(matrix);
  const Vector2d old = RefDirection() ? RefDirection()->vector2d() : Vector2d(1, 0);
  const Vector2d x = (old * matrix).normalized();
  if (x.isNear({1, 0}))
    clearRefDirection();
  else if (RefDirection())
    RefDirection()->setVector(x);
  else
    setRefDirection(makeDirection(x));
}

}  // namespace qor::fc::resource::geometry
