#include "Fc/Resource/Geometry/FcVector.h"

#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Vector2d;
using math::Vector3d;

Vector3d FcVector::vector() const {
  return Orientation() ? Orientation()->vector().normalized() * Magnitude() : Vector3d();
}

void FcVector::setVector(const Vector3d& vector, std::size_t dimension) {
  const double length = vector.length();
  setMagnitude(length);
  if (!(length > 0)) return;
  const Vector3d unit(vector.x / length, vector.y / length, vector.z / length);
  if (!Orientation()) setOrientation(makeDirection(unit));
  if (dimension == 2)
    Orientation()->setVector(Vector2d(unit.x, unit.y));
  else
    Orientation()->setVector(unit);
}

void FcVector::draw(const FcDrawParams& /*params*/) const {}

void FcVector::transform(const math::Matrix& matrix) {
  const Vector3d moved = vector() * matrix;
  setVector(moved, std::abs(moved.z) <= math::Epsilon::current().general ? 2 : 3);
}

}  // namespace qor::fc::resource::geometry
