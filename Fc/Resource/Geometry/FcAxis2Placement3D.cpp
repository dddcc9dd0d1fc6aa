#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Vector3d;

namespace {

/// Both directions lie in space, or are left out.
void expectThreeDimensional(const FcAxis2Placement3D& placement, const FcDirection* direction,
                            const std::source_location& where = std::source_location::current()) {
  expectThat(placement, !direction || direction->dimension() == 3,
             "Assertion failed: by formal propositions Axis must reference a three-dimensional "
             "direction",
             where);
}

/// The part of the reference direction at right angles to the Z axis, of length 1.
Vector3d refDirectionAdjustedToBeOrthonormalTo(const Vector3d& z, const FcDirection& reference) {
  const Vector3d r = reference.vector().normalized();
  expectThat(!z.isNear({}), "Expect zAxis not to be Null Vector.");
  expectThat(!r.isNear({}), "Expect RefDirection() not to be Null Vector.");
  expectThat(!z.isParallel(r), "RefDirection() must not to be parallel to Axis()");
  const Vector3d x = z.cross(r).cross(z).normalized();
  expectThat(!x.isNear({}),
             "Direction orthogonal to RefDirection() and zAxis is Null vector: this contradicts "
             "formal propositions (cross product of Axis() and RefDirection() must not be Null "
             "vector)");
  return x;
}

/// The X axis where no direction is asked for.
Vector3d defaultXAxis(const Vector3d& z) {
  const bool alongX = z.isNear({1, 0, 0}) || z.isNear({-1, 0, 0});
  const Vector3d d = alongX ? Vector3d(0, 1, 0) : Vector3d(1, 0, 0);
  return z.cross(d).cross(z).normalized();
}

void overwrite(std::shared_ptr<FcDirection>& direction, const Vector3d& value) {
  if (direction)
    direction->setVector(value);
  else
    direction = makeDirection(value);
}

}  // namespace

FcAxis2Placement3D::FcAxis2Placement3D(const Matrix& matrix) {
  expectThat(!matrix.isMirror(),
             "Assertion failed in Constructor FcAxis2Placement3D: by formal propositions, "
             "placements must not allow mirroring");
  setPlacement(matrix);
}

Matrix FcAxis2Placement3D::placementGet() const {
  expectThat(*this, !Axis() == !RefDirection(),
             "Assertion failed: by formal propositions either both, Axis and RefDirection must be "
             "given, or neither of them.");
  if (!Axis() && !RefDirection()) return Matrix::createTranslation(location() - math::Point3d());
  expectThreeDimensional(*this, Axis().get());
  const Vector3d z = Axis() ? Axis()->vector().normalized() : Vector3d(0, 0, 1);
  if (z.isNear({})) return {};
  expectThreeDimensional(*this, RefDirection().get());
  const Vector3d x =
      RefDirection() ? refDirectionAdjustedToBeOrthonormalTo(z, *RefDirection()) : defaultXAxis(z);
  if (!requireThat(*this, x.isPerpendicular(z), "xAxis and zAxis should be perpendicular"))
    return Matrix::createTranslation(location() - math::Point3d());
  const Matrix frame(location(), x, z);
  expectThat(*this, !frame.isMirror(),
             "Assertion failed in placementGet: by formal propositions, placements must define "
             "right-handed systems and must not allow mirroring");
  return frame;
}

void FcAxis2Placement3D::setPlacement(const Matrix& matrix) {
  expectThat(*this, !matrix.isMirror(),
             "Assertion failed in vPlacementSet: by formal propositions, placements must not allow "
             "mirroring");
  expectThat(*this, !matrix.z().normalized().cross(matrix.x().normalized()).isNear({}),
             "Assertion failed in vPlacementSet: by formal propositions, cross product of Axis() "
             "and RefDirection() must not be Null vector");
  writeLocation(matrix.origin());
  if (matrix.x().isNear({1, 0, 0}) && matrix.z().isNear({0, 0, 1})) {
    clearAxis();
    clearRefDirection();
  } else {
    overwrite(m_Axis, matrix.z());
    overwrite(m_RefDirection, matrix.x());
  }
}

void FcAxis2Placement3D::transform(const Matrix& matrix) {
  expectThat(*this, !matrix.isMirror(),
             "Assertion failed in transform: by formal propositions, placements must not allow "
             "mirroring");
  if (!matrix.isIdentity()) setPlacement(placementGet() * matrix);
}

std::shared_ptr<FcAxis2Placement3D> makePlacement(const Matrix& matrix) {
  return std::make_shared<FcAxis2Placement3D>(matrix);
}

}  // namespace qor::fc::resource::geometry
