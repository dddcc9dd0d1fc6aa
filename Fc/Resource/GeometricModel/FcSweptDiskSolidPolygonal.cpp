#include "Fc/Resource/GeometricModel/FcSweptDiskSolidPolygonal.h"

#include <array>
#include <utility>

#include "Fc/FcParams.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Shapes/FilletedPath.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using geometry::FcArcIndex;
using geometry::FcIndexedPolyCurve;
using geometry::FcLineIndex;
using math::Point3d;

namespace {

std::shared_ptr<FcCartesianPointList3D> pointList(const std::vector<Point3d>& points) {
  std::vector<std::array<measure::FcLengthMeasure, 3>> coordinates;
  coordinates.reserve(points.size());
  for (const Point3d& point : points) coordinates.push_back({point.x, point.y, point.z});
  auto list = makeEntity<FcCartesianPointList3D>();
  list->setCoordList(std::move(coordinates));
  return list;
}

geometry::FcSegmentIndexSelect indexed(const FilletedPath::Segment& segment) {
  const auto first = static_cast<std::int64_t>(segment.first) + 1;
  if (segment.kind == FilletedPath::Segment::Kind::arc)
    return FcArcIndex({first, first + 1, first + 2});
  return FcLineIndex({first, first + 1});
}

}  // namespace

std::vector<Point3d> FcSweptDiskSolidPolygonal::getSweptDiskCurve(const FcParams& params) const {
  if (!Directrix()) return {};
  return getDirectrixAsIndexedPolyCurve(params)->curveGet(params, {}, {}, false);
}

std::shared_ptr<FcIndexedPolyCurve> FcSweptDiskSolidPolygonal::getDirectrixAsIndexedPolyCurve(
    const FcParams& params) const {
  auto curve = makeEntity<FcIndexedPolyCurve>();
  if (!Directrix()) return curve;
  const FcParams legs(params, math::CurveDiscretization(1.0, 10, 10));
  const std::vector<Point3d> points = Directrix()->curveGet(legs, {}, {}, false);
  if (!FilletRadius() || !(*FilletRadius() > math::Epsilon::current().length)) {
    curve->setPoints(pointList(points));
    return curve;
  }
  const FilletedPath path = filletedPath(points, *FilletRadius());
  std::vector<geometry::FcSegmentIndexSelect> segments;
  segments.reserve(path.segments.size());
  for (const auto& segment : path.segments) segments.push_back(indexed(segment));
  curve->setPoints(pointList(path.points));
  curve->setSegments(std::move(segments));
  return curve;
}

}  // namespace qor::fc::resource::geometricmodel
