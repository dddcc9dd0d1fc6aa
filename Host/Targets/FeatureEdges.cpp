#include "Host/Targets/FeatureEdges.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Host/Targets/PointWelder.h"
#include "Qor/Math/Vector.h"

namespace qor::host::targets {

namespace {

using math::Point3d;
using math::Vector3d;

const double flat = std::cos(25 * 3.14159265358979 / 180);

struct Edge {
  std::pair<std::uint32_t, std::uint32_t> places;  // the lower number first
  std::uint32_t from;
  std::uint32_t to;
  Vector3d normal;  // of its triangle
};

std::vector<Edge> edgesOf(const std::vector<Point3d>& points,
                          const std::vector<std::uint32_t>& triangles) {
  PointWelder welder(PointWelder::samePlace);
  std::vector<Edge> edges;
  edges.reserve(triangles.size());
  for (std::size_t i = 0; i + 2 < triangles.size(); i += 3) {
    const Point3d& a = points[triangles[i]];
    const Vector3d cross = (points[triangles[i + 1]] - a).cross(points[triangles[i + 2]] - a);
    const double length = cross.length();
    if (length == 0) continue;
    for (std::size_t k = 0; k < 3; ++k) {
      const std::uint32_t from = triangles[i + k], to = triangles[i + (k + 1) % 3];
      const std::uint32_t p = welder.numberOf(points[from]), q = welder.numberOf(points[to]);
      if (p != q) edges.push_back({std::minmax(p, q), from, to, cross * (1 / length)});
    }
  }
  return edges;
}

}  // namespace

std::vector<std::array<std::uint32_t, 2>> featureEdges(
    const std::vector<Point3d>& points, const std::vector<std::uint32_t>& triangles) {
  std::vector<Edge> edges = edgesOf(points, triangles);
  std::sort(edges.begin(), edges.end(),
            [](const Edge& a, const Edge& b) { return a.places < b.places; });
  std::vector<std::array<std::uint32_t, 2>> result;
  for (auto edge = edges.begin(); edge != edges.end();) {
    const auto end = std::find_if(edge, edges.end(),
                                  [&](const Edge& other) { return other.places != edge->places; });
    const bool isSmooth = end - edge > 1 && std::all_of(edge, end, [&](const Edge& other) {
                            return std::abs(other.normal.dot(edge->normal)) > flat;
                          });
    if (!isSmooth) result.push_back({edge->from, edge->to});
    edge = end;
  }
  return result;
}

}  // namespace qor::host::targets
