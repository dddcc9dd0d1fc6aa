#include "Qor/Draw/PolygonOrientation.h"

#include <cstddef>

namespace qor::generate::draw {

namespace {

// Twice the area, positive for counter-clockwise. Taken around the first point, so that a small
// ring far from the origin keeps its digits.
double twiceArea(const std::vector<math::Point2d>& points) {
  double area = 0;
  for (std::size_t i = 2; i < points.size(); ++i) {
    const auto a = points[i - 1] - points.front();
    const auto b = points[i] - points.front();
    area += a.x * b.y - a.y * b.x;
  }
  return area;
}

}  // namespace

bool isCounterClockwisePolygon(const std::vector<math::Point2d>& points) {
  return twiceArea(points) > 0;
}

bool isClockwisePolygon(const std::vector<math::Point2d>& points) { return twiceArea(points) < 0; }

}  // namespace qor::generate::draw
