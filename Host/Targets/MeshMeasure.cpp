#include "Host/Targets/MeshMeasure.h"

#include <algorithm>
#include <utility>

#include "Host/Targets/PointWelder.h"

namespace qor::host::targets {

namespace {

using math::Point3d;
using math::Vector3d;

/// The edges of triangles, each with how much more often it is used from its lower end to its
/// higher one than back.
class EdgeBalance {
 public:
  void reserve(std::size_t triangles) { m_edges.reserve(triangles * 3); }
  void add(std::uint32_t from, std::uint32_t to) {
    if (from == to) return;
    m_edges.push_back({std::minmax(from, to), from < to ? 1 : -1});
  }
  bool isBalanced() {
    std::sort(m_edges.begin(), m_edges.end());
    for (auto edge = m_edges.begin(); edge != m_edges.end();) {
      int balance = 0;
      const auto ends = edge->first;
      for (; edge != m_edges.end() && edge->first == ends; ++edge) balance += edge->second;
      if (balance != 0) return false;
    }
    return true;
  }

 private:
  std::vector<std::pair<std::pair<std::uint32_t, std::uint32_t>, int>> m_edges;
};

}  // namespace

MeshMeasure measureMesh(const std::vector<Point3d>& points,
                        const std::vector<std::uint32_t>& triangles) {
  MeshMeasure measure;
  if (triangles.empty()) return measure;
  PointWelder welder(PointWelder::samePlace);
  std::vector<std::uint32_t> places(points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    if (points[i].isFinite()) places[i] = welder.numberOf(points[i]);
  EdgeBalance edges;
  edges.reserve(triangles.size() / 3);
  Point3d origin;
  for (std::size_t i = 0; i + 2 < triangles.size(); i += 3) {
    const std::uint32_t corners[3] = {triangles[i], triangles[i + 1], triangles[i + 2]};
    const Point3d &a = points[corners[0]], &b = points[corners[1]], &c = points[corners[2]];
    if (!a.isFinite() || !b.isFinite() || !c.isFinite()) continue;
    if (measure.triangles == 0) origin = a;  // near, so that the volume loses no digits
    for (const std::uint32_t corner : corners) measure.box.include(points[corner]);
    const Vector3d normal = (b - a).cross(c - a);
    measure.area += normal.length() / 2;
    measure.volume += (a - origin).dot(normal) / 6;
    ++measure.triangles;
    for (int k = 0; k < 3; ++k) edges.add(places[corners[k]], places[corners[(k + 1) % 3]]);
  }
  measure.closed = measure.triangles > 0 && edges.isBalanced();
  return measure;
}

}  // namespace qor::host::targets
