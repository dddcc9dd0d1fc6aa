#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Vector3d;

namespace {

void assertThat(bool holds, const char* message, const char* operation, int line) {
  if (!holds && Assert::isEnabled())
    Assert::addAssert(
        {.message = message,
         .function = std::string("qor::fc::resource::geometry::FcAxis2Placement3D::") + operation,
         .source = "FcAxis2Placement3D",
         .line = line});
}

void overwrite(std::shared_ptr<FcDirection>& direction, const Vector3d& value) {
  if (!direction) direction = makeEntity<FcDirection>();
  direction->setDirectionRatios({value.x, value.y, value.z});
}

}  // namespace

FcAxis2Placement3D::FcAxis2Placement3D(const Matrix& matrix) {
  assertThat(!matrix.isMirror(),
             "Assertion failed in Constructor FcAxis2Placement3D: by formal propositions, "
             "placements must not allow mirroring",
             "FcAxis2Placement3D", __LINE__);
  setPlacement(matrix);
}

void FcAxis2Placement3D::setPlacement(const Matrix& matrix) {
  assertThat(!matrix.isMirror(),
             "Assertion failed in vPlacementSet: by formal propositions, placements must not allow "
             "mirroring",
             "setPlacement", __LINE__);
  assertThat(!matrix.z().normalized().cross(matrix.x().normalized()).isNear({}),
             "Assertion failed in vPlacementSet: by formal propositions, cross product of Axis() "
             "and RefDirection() must not be Null vector",
             "setPlacement", __LINE__);

  auto location = fcCast<FcCartesianPoint>(Location());
  if (!location) {
    location = makeEntity<FcCartesianPoint>();
    setLocation(location);
  }
  location->setCoordinates({matrix.origin().x, matrix.origin().y, matrix.origin().z});

  if (matrix.x().isNear({1, 0, 0}) && matrix.z().isNear({0, 0, 1})) {
    clearAxis();
    clearRefDirection();
  } else {
    overwrite(m_Axis, matrix.z());
    overwrite(m_RefDirection, matrix.x());
  }
}

}  // namespace qor::fc::resource::geometry
