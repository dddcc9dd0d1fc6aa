#pragma once

#include <algorithm>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::fc::resource::geometry {

/// The part of a polyline from the first place where `start` lies on it to the next where `end`
/// does, both included. "On" means within the general tolerance. Empty when `start` lies nowhere;
/// up to the start of the last segment when `end` lies on none of the segments behind it.
///
/// `Point` is a point of the plane or of space. Linear.
template <typename Point>
std::vector<Point> trimPolyline(const std::vector<Point>& points, const Point& start,
                                const Point& end) {
  const double tolerance = math::Epsilon::current().general;
  // How far along the segment its point closest to `p` lies, 0 to 1, when `p` is that point.
  const auto placeOn = [&](const Point& a, const Point& b, const Point& p) {
    const auto along = b - a;
    const double squared = along.dot(along);
    const double fraction = squared > 0 ? std::clamp((p - a).dot(along) / squared, 0.0, 1.0) : 0;
    return (a + along * fraction).distance(p) <= tolerance ? fraction : -1;
  };
  std::vector<Point> result;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const Point &a = points[i - 1], &b = points[i];
    double from = 0;
    if (result.empty()) {
      from = placeOn(a, b, start);
      if (from < 0) continue;
      result.push_back(start);
    } else if (!a.isNear(result.back())) {
      result.push_back(a);
    }
    const double to = placeOn(a, b, end);
    if (to >= from && !(to == from && result.size() == 1)) {
      result.push_back(end);
      return result;
    }
  }
  return result;
}

}  // namespace qor::fc::resource::geometry
