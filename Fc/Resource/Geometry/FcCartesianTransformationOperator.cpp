#include "Fc/Resource/Geometry/FcCartesianTransformationOperator.h"

#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Vector3d;

Matrix FcCartesianTransformationOperator::frameAround(const Vector3d& z) const {
  Vector3d first = Axis1() ? Axis1()->vector().normalized() : Vector3d(1, 0, 0);
  if (!Axis1() && z.cross(first).isNear({})) first = {0, 1, 0};
  const Vector3d x = z.cross(first).cross(z).normalized();
  const Vector3d y = Axis2() ? x.cross(Axis2()->vector().normalized()).cross(x).normalized()
                             : z.cross(x).normalized();
  return {x, y, z, LocalOrigin() ? LocalOrigin()->point() : math::Point3d()};
}

}  // namespace qor::fc::resource::geometry
