#include "Fc/Resource/Geometry/FcPlacement.h"

#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"

namespace qor::fc::resource::geometry {

using math::Matrix;
using math::Matrix2d;
using math::Point2d;
using math::Point3d;

const FcCartesianPoint* FcPlacement::locationPoint() const {
  return fcCast<FcCartesianPoint>(static_cast<const FcBase*>(Location().get()));
}

Point3d FcPlacement::location() const {
  const FcCartesianPoint* point = locationPoint();
  return point ? point->point() : Point3d();
}

FcCartesianPoint& FcPlacement::ownedLocation() {
  if (!locationPoint()) setLocation(makeEntity<FcCartesianPoint>());
  return static_cast<FcCartesianPoint&>(*Location());
}

void FcPlacement::writeLocation(const Point3d& point) { ownedLocation().setPoint(point); }
void FcPlacement::writeLocation(const Point2d& point) { ownedLocation().setPoint(point); }

Matrix2d FcPlacement::transformation2dGet() const {
  const FcCartesianPoint* point = locationPoint();
  if (!requireThat(*this, point, "Should have location")) return {};
  const bool planar =
      point->dimension() == 2 || std::abs(point->point().z) <= math::Epsilon::current().length;
  expectThat(*this, planar, "Should have two dimension");
  return Matrix2d::createTranslation(point->point2d() - Point2d());
}

Matrix FcPlacement::transformationGet() const {
  const FcCartesianPoint* point = locationPoint();
  if (!requireThat(*this, point, "Should have location")) return {};
  expectThat(*this, point->dimension() == 3, "Should have two dimension");
  return Matrix::createTranslation(point->point() - Point3d());
}

void FcPlacement::transform(const Matrix& matrix) {
  if (!matrix.isIdentity()) writeLocation(location() * matrix);
}

void FcPlacement::transform2d(const Matrix2d& matrix) {
  const Point3d old = location();
  if (!matrix.isIdentity()) writeLocation(Point2d(old.x, old.y) * matrix);
}

}  // namespace qor::fc::resource::geometry
