#include "Fc/Shapes/GradientPath.h"

#include <algorithm>

namespace qor::fc::resource::geometry {

using math::Point3d;

namespace {

/// The length along the path at each of its points, stretched to that of its curve.
std::vector<double> stationsOf(const std::vector<Point3d>& path, double length) {
  std::vector<double> stations{0};
  for (std::size_t i = 1; i < path.size(); ++i)
    stations.push_back(stations.back() + path[i].distance(path[i - 1]));
  const double chords = stations.back();
  if (chords > 0)
    for (double& station : stations) station *= length / chords;
  return stations;
}

/// What `value` gives at `place`, straight between the two of `places` around it. `i` is where the
/// last look-up ended: places are asked in ascending order.
template <typename Values>
auto between(const std::vector<double>& places, double place, std::size_t& i, Values&& value) {
  while (i + 2 < places.size() && places[i + 1] < place) ++i;
  const double width = places[i + 1] - places[i];
  const double part = width > 0 ? std::clamp((place - places[i]) / width, 0.0, 1.0) : 0;
  return value(i) + (value(i + 1) - value(i)) * part;
}

}  // namespace

std::vector<Point3d> gradientPath(const std::vector<Point3d>& path, double length,
                                  const std::vector<Point3d>& heights) {
  std::vector<Point3d> result;
  if (path.size() < 2 || heights.size() < 2) return result;
  const std::vector<double> stations = stationsOf(path, length);
  std::vector<double> places;
  for (const Point3d& height : heights) places.push_back(height.x);

  std::vector<double> all = stations;
  all.insert(all.end(), places.begin(), places.end());
  std::sort(all.begin(), all.end());
  const double tolerance = math::Epsilon::current().length;
  const double first = std::max(stations.front(), places.front());
  const double last = std::min(stations.back(), places.back());
  std::size_t onPath = 0, onHeights = 0;
  double previous = first - 1;
  for (const double place : all) {
    if (place < first - tolerance || place > last + tolerance || place - previous <= tolerance)
      continue;
    previous = place;
    const Point3d plan = between(stations, place, onPath, [&](std::size_t i) { return path[i]; });
    const double z = between(places, place, onHeights, [&](std::size_t i) { return heights[i].y; });
    result.emplace_back(plan.x, plan.y, z);
  }
  return result;
}

}  // namespace qor::fc::resource::geometry
