#include "Fc/Shapes/FilletedPath.h"

#include <cmath>
#include <numbers>

#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using math::Point3d;
using math::Vector3d;

namespace {

void lineTo(FilletedPath& path, const Point3d& point) {
  path.points.push_back(point);
  path.segments.push_back({FilletedPath::Segment::Kind::line, path.points.size() - 2});
}

void arcTo(FilletedPath& path, const Point3d& via, const Point3d& end) {
  path.points.push_back(via);
  path.points.push_back(end);
  path.segments.push_back({FilletedPath::Segment::Kind::arc, path.points.size() - 3});
}

/// Draws the corner at `vertex`; `previous` is where the last corner was left.
void turnCorner(FilletedPath& path, const Point3d& previous, const Point3d& vertex,
                const Point3d& next, double radius) {
  const double tolerance = math::Epsilon::current().angle;
  const Vector3d back = (previous - vertex).normalized();
  const Vector3d on = (next - vertex).normalized();
  const double angle = back.innerAngle(on);
  if (std::abs(angle - std::numbers::pi) <= tolerance) return;
  if (angle <= tolerance) {
    lineTo(path, vertex);
    return;
  }
  const double half = angle / 2;
  const double toTangent = radius / std::tan(half);
  const Point3d begin = vertex + back * toTangent;
  const Vector3d toCentre = (back + on).normalized();
  if (!begin.isNear(path.points.back())) lineTo(path, begin);
  arcTo(path, vertex + toCentre * (radius / std::sin(half) - radius), vertex + on * toTangent);
}

}  // namespace

FilletedPath filletedPath(const std::vector<Point3d>& path, double radius) {
  std::vector<Point3d> corners;
  for (const Point3d& point : path)
    if (corners.empty() || !point.isNear(corners.back())) corners.push_back(point);

  FilletedPath result;
  if (corners.empty()) return result;
  result.points.push_back(corners.front());
  Point3d previous = corners.front();
  for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
    const std::size_t before = result.points.size();
    turnCorner(result, previous, corners[i], corners[i + 1], radius);
    if (result.points.size() != before) previous = result.points.back();
  }
  if (!corners.back().isNear(result.points.back())) lineTo(result, corners.back());
  return result;
}

}  // namespace qor::fc::resource::geometricmodel
