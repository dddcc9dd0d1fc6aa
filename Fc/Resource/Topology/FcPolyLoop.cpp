#include "Fc/Resource/Topology/FcPolyLoop.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::topology {

using geometry::FcCartesianPoint;

namespace {

/// The first point that there is; null for none.
const FcCartesianPoint* firstPoint(const std::vector<std::shared_ptr<FcCartesianPoint>>& polygon) {
  for (const auto& point : polygon)
    if (point) return point.get();
  return nullptr;
}

}  // namespace

template <class Callback>
void FcPolyLoop::forEachPoint(Callback&& callback) const {
  for (const auto& point : m_Polygon) {
    if (point)
      callback(*point);
    else
      report(*this, "Assertion failed: expect valid FcCartesianPoint");
  }
}

void FcPolyLoop::draw(const FcDrawParams& params) const {
  std::vector<std::vector<math::Point2d>> flat(1);
  if (boPoints2dGet(flat[0])) {
    params->vPolygon(flat);
    return;
  }
  const std::vector<std::vector<math::Point3d>> loops{points3dGet(FcParams(params))};
  if (!loops[0].empty()) params->vPolygon(loops);
}

void FcPolyLoop::transform(const math::Matrix& matrix) {
  MovedPoints moved;
  forEachPoint([&](FcCartesianPoint& point) { moved.move(point, matrix); });
}

std::optional<math::Extent> FcPolyLoop::boundingBox(const FcParams& params) const {
  const auto box = math::Extent::ofPoints(points3dGet(params));
  return box.isValid() ? std::optional(box) : std::nullopt;
}

bool FcPolyLoop::boPoints2dGet(std::vector<math::Point2d>& points) const {
  if (!wasPolygonSetFromPointsOfDimension(2)) return false;
  points.clear();
  points.reserve(m_Polygon.size());
  forEachPoint([&points](const FcCartesianPoint& point) {
    points.emplace_back(point.Coordinates()[0], point.Coordinates()[1]);
  });
  return true;
}

std::vector<math::Point3d> FcPolyLoop::points3dGet(const FcParams& /*params*/) const {
  std::vector<math::Point3d> points;
  points.reserve(m_Polygon.size());
  forEachPoint([&points](const FcCartesianPoint& point) {
    const auto& coordinates = point.Coordinates();
    points.emplace_back(coordinates[0], coordinates[1], coordinates[2]);
  });
  return points;
}

void FcPolyLoop::vPolygonSet(const std::vector<math::Point2d>& points) {
  std::vector<std::shared_ptr<FcCartesianPoint>> polygon;
  polygon.reserve(points.size());
  for (const math::Point2d& point : points) {
    polygon.push_back(makeEntity<FcCartesianPoint>());
    polygon.back()->setCoordinates({point.x, point.y});
  }
  setPolygon(std::move(polygon));
}

void FcPolyLoop::vPolygonSet(const std::vector<math::Point3d>& points) {
  std::vector<std::shared_ptr<FcCartesianPoint>> polygon;
  polygon.reserve(points.size());
  for (const math::Point3d& point : points) {
    polygon.push_back(makeEntity<FcCartesianPoint>());
    polygon.back()->setCoordinates({point.x, point.y, point.z});
  }
  setPolygon(std::move(polygon));
}

bool FcPolyLoop::wasPolygonSetFromPointsOfDimension(std::size_t dimension) const {
  const FcCartesianPoint* point = firstPoint(m_Polygon);
  return point && point->Coordinates().size() == dimension;
}

}  // namespace qor::fc::resource::topology
