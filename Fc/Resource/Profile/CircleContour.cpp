#include "Fc/Resource/Profile/CircleContour.h"

#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"

namespace qor::fc::resource::profile {

std::vector<math::Point2d> circleContour(const math::Matrix2d& frame, double radius,
                                         const math::CurveDiscretization& discretization) {
  return discretization.discretizeCircle(frame.origin(), radius,
                                         math::Vector2d(1, 0).counterClockwiseAngle(frame.x()));
}

std::shared_ptr<geometry::FcIndexedPolyCurve> circleCurve(double radius) {
  using geometry::FcArcIndex;
  const auto points = makeEntity<geometricmodel::FcCartesianPointList2D>();
  points->setCoordList({{0.0, -radius}, {radius, 0.0}, {0.0, radius}, {-radius, 0.0}});
  const auto curve = makeEntity<geometry::FcIndexedPolyCurve>();
  curve->setPoints(points);
  curve->setSegments({FcArcIndex({1, 2, 3}), FcArcIndex({3, 4, 1})});
  return curve;
}

}  // namespace qor::fc::resource::profile
