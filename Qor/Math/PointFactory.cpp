#include "Qor/Math/PointFactory.h"

namespace qor::math {

namespace _2d {

std::vector<Point> PointFactory::fromPoints(const std::vector<_3d::Point>& points) {
  std::vector<Point> result;
  result.reserve(points.size());
  for (const _3d::Point& point : points) result.push_back(fromPoint(point));
  return result;
}

}  // namespace _2d

namespace _3d {

std::vector<Point> PointFactory::fromPoints(const std::vector<_2d::Point>& points, double z) {
  std::vector<Point> result;
  result.reserve(points.size());
  for (const _2d::Point& point : points) result.push_back(fromPoint(point, z));
  return result;
}

}  // namespace _3d

}  // namespace qor::math
