#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

#include "Fc/Resource/Expect.h"
#include "Fc/Resource/Geometry/FcDirection.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Vector3d;

namespace {

/// Both directions lie in space, or are left out.
bool expectThreeDimensional(const FcDirection* direction, int line) {
  return expectThat(!direction || direction->dimension() == 3,
                    "Assertion failed: by formal propositions Axis must reference a "
                    "three-dimensional direction",
                    "qor::fc::resource::geometry::FcAxis2Placement3D::placementGet", line);
}

/// The part of the reference direction at right angles to the Z axis, of length 1.
Vector3d refDirectionAdjustedToBeOrthonormalTo(const Vector3d& z, const FcDirection& reference) {
  static constexpr char operation[] =
      "qor::fc::resource::geometry::FcAxis2Placement3D::refDirectionAdjustedToBeOrthonormalTo";
  const Vector3d r = reference.vector().normalized();
  expectThat(!z.isNear({}), "Expect zAxis not to be Null Vector.", operation, __LINE__);
  expectThat(!r.isNear({}), "Expect RefDirection() not to be Null Vector.", operation, __LINE__);
  expectThat(!z.isParallel(r), "RefDirection() must not to be parallel to Axis()", operation,
             __LINE__);
  const Vector3d x = z.cross(r).cross(z).normalized();
  expectThat(!x.isNear({}),
             "Direction orthogonal to RefDirection() and zAxis is Null vector: this contradicts "
             "formal propositions (cross product of Axis() and RefDirection() must not be Null "
             "vector)",
             operation, __LINE__);
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
             "placements must not allow mirroring",
             "qor::fc::resource::geometry::FcAxis2Placement3D::FcAxis2Placement3D", __LINE__);
  setPlacement(matrix);
}

Matrix FcAxis2Placement3D::placementGet() const {
  static constexpr char operation[] =
      "qor::fc::resource::geometry::FcAxis2Placement3D::placementGet";
  expectThat(!Axis() == !RefDirection(),
             "Assertion failed: by formal propositions either both, Axis and RefDirection must be "
             "given, or neither of them.",
             operation, __LINE__);
  if (!Axis() && !RefDirection()) return Matrix::createTranslation(location() - math::Point3d());
  expectThreeDimensional(Axis().get(), __LINE__);
  const Vector3d z = Axis() ? Axis()->vector().normalized() : Vector3d(0, 0, 1);
  if (z.isNear({})) return {};
  expectThreeDimensional(RefDirection().get(), __LINE__);
  const Vector3d x =
      RefDirection() ? refDirectionAdjustedToBeOrthonormalTo(z, *RefDirection()) : defaultXAxis(z);
  if (!expectThat(x.isPerpendicular(z), "xAxis and zAxis should be perpendicular", operation,
                  __LINE__))
    return Matrix::createTranslation(location() - math::Point3d());
  const Matrix frame(location(), x, z);
  expectThat(!frame.isMirror(),
             "Assertion failed in placementGet: by formal propositions, placements must define "
             "right-handed systems and must not allow mirroring",
             operation, __LINE__);
  return frame;
}

void FcAxis2Placement3D::setPlacement(const Matrix& matrix) {
  expectThat(!matrix.isMirror(),
             "Assertion failed in vPlacementSet: by formal propositions, placements must not allow "
             "mirroring",
             "qor::fc::resource::geometry::FcAxis2Placement3D::setPlacement", __LINE__);
  expectThat(!matrix.z().normalized().cross(matrix.x().normalized()).isNear({}),
             "Assertion failed in vPlacementSet: by formal propositions, cross product of Axis() "
             "and RefDirection() must not be Null vector",
             "qor::fc::resource::geometry::FcAxis2Placement3D::setPlacement", __LINE__);
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
  expectThat(!matrix.isMirror(),
             "Assertion failed in transform: by formal propositions, placements must not allow "
             "mirroring",
             "qor::fc::resource::geometry::FcAxis2Placement3D::transform", __LINE__);
  if (!matrix.isIdentity()) setPlacement(placementGet() * matrix);
}

std::shared_ptr<FcAxis2Placement3D> makePlacement(const Matrix& matrix) {
  return std::make_shared<FcAxis2Placement3D>(matrix);
}

}  // namespace qor::fc::resource::geometry
