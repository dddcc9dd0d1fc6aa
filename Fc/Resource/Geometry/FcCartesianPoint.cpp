#include "Fc/Resource/Geometry/FcCartesianPoint.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Reflection/MakeEntity.h"

namespace qor::fc::resource::geometry {

void FcCartesianPoint::setPointOfLeastDimension(const math::Point3d& point) {
  if (std::abs(point.z) <= math::Epsilon::current().length)
    setPoint(math::Point2d(point.x, point.y));
  else
    setPoint(point);
}

void FcCartesianPoint::draw(const FcDrawParams& params) const { params->vPolyline({point()}); }

void FcCartesianPoint::transform(const math::Matrix& matrix) {
  setPointOfLeastDimension(point() * matrix);
}

std::optional<math::Extent> FcCartesianPoint::boundingBox(const FcParams& /*params*/) const {
  return math::Extent(point(), point());
}

std::shared_ptr<FcCartesianPoint> makePoint(const math::Point3d& point) {
  auto result = makeEntity<FcCartesianPoint>();
  result->setPoint(point);
  return result;
}

std::shared_ptr<FcCartesianPoint> makePoint(const math::Point2d& point) {
  auto result = makeEntity<FcCartesianPoint>();
  result->setPoint(point);
  return result;
}

}  // namespace qor::fc::resource::geometry
