#include "Fc/ComplexGeometry/Bridge/PolyhedronMaker.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepLib.hxx>
#include <BRep_Builder.hxx>
#include <Geom_Plane.hxx>
#include <Precision.hxx>
#include <TopAbs.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "Fc/HelperFunctionsOC.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc {
namespace {

std::uint64_t edgeKey(std::uint32_t a, std::uint32_t b) {
  return (static_cast<std::uint64_t>(std::min(a, b)) << 32) | std::max(a, b);
}

}  // namespace

void PolyhedronMaker::addPolygon(const std::vector<Ring>& rings) {
  if (!m_isSound) return;
  auto polygon = polygonOf(rings);
  m_isSound = polygon.has_value();
  if (!m_isSound) return;
  const double bent = distanceOffPlane(*polygon);
  if (bent <= math::Epsilon::current().length || bent > m_mostBent || polygon->rings.size() > 1)
    return addFlat(std::move(*polygon));
  for (Indices& triangle : trianglesOf(*polygon)) {
    const math::Vector3d area = areaVector(triangle);
    const double length = area.length();
    m_isSound = m_isSound && length > 0;
    if (m_isSound) addFlat({.rings = {std::move(triangle)}, .normal = area * (1 / length)});
  }
}

void PolyhedronMaker::addFlat(Polygon&& polygon) {
  m_offPlane = std::max(m_offPlane, distanceOffPlane(polygon));
  countEdges(polygon);
  m_polygons.push_back(std::move(polygon));
}

// The corner is convex, seen along the normal, and the triangle over it holds no other corner.
bool PolyhedronMaker::isEar(const Indices& ring, std::size_t at,
                            const math::Vector3d& normal) const {
  const std::size_t n = ring.size();
  const math::Point3d corners[] = {m_points[ring[(at + n - 1) % n]], m_points[ring[at]],
                                   m_points[ring[(at + 1) % n]]};
  const auto isLeft = [&](const math::Point3d& point, int side) {
    const math::Point3d& from = corners[side];
    return (corners[(side + 1) % 3] - from).cross(point - from).dot(normal) > 0;
  };
  if (!isLeft(corners[2], 0)) return false;
  for (std::size_t i = 2; i + 1 < n; ++i) {
    const math::Point3d& other = m_points[ring[(at + i) % n]];
    if (isLeft(other, 0) && isLeft(other, 1) && isLeft(other, 2)) return false;
  }
  return true;
}

// Cuts off one ear after the other; a ring that has none is crossed by itself, and gives no more.
std::vector<PolyhedronMaker::Indices> PolyhedronMaker::trianglesOf(const Polygon& polygon) const {
  std::vector<Indices> triangles;
  Indices ring = polygon.rings[0];
  std::size_t at = 0, tried = 0;
  while (ring.size() > 3 && tried < ring.size()) {
    const std::size_t n = ring.size();
    at %= n;
    if (!isEar(ring, at, polygon.normal)) {
      ++at, ++tried;
      continue;
    }
    triangles.push_back({ring[(at + n - 1) % n], ring[at], ring[(at + 1) % n]});
    ring.erase(ring.begin() + static_cast<std::ptrdiff_t>(at));
    tried = 0;
  }
  triangles.push_back(std::move(ring));
  return triangles;
}

// Empty for rings that go round nothing.
std::optional<PolyhedronMaker::Polygon> PolyhedronMaker::polygonOf(const std::vector<Ring>& rings) {
  Polygon polygon;
  for (const Ring& ring : rings) {
    Indices indices = indicesOf(ring);
    if (indices.size() < 3) return {};
    const math::Vector3d area = areaVector(indices);
    if (polygon.rings.empty()) {
      const double length = area.length();
      if (!(length > 0)) return {};
      polygon.normal = area * (1 / length);
    } else if (area.dot(polygon.normal) > 0) {
      std::reverse(indices.begin(), indices.end());
    }
    polygon.rings.push_back(std::move(indices));
  }
  if (polygon.rings.empty()) return {};
  return polygon;
}

PolyhedronMaker::Indices PolyhedronMaker::indicesOf(const Ring& ring) {
  Indices indices;
  indices.reserve(ring.size());
  for (const math::Point3d& point : ring) {
    const std::uint32_t index = m_merger.indexOf(point);
    if (indices.empty() || indices.back() != index) indices.push_back(index);
  }
  while (indices.size() > 1 && indices.front() == indices.back()) indices.pop_back();
  return indices;
}

// Twice the area, on the side on which the ring runs counter-clockwise.
math::Vector3d PolyhedronMaker::areaVector(const Indices& ring) const {
  const math::Point3d origin = m_points[ring[0]];
  math::Vector3d sum;
  for (std::size_t i = 1; i + 1 < ring.size(); ++i)
    sum = sum + (m_points[ring[i]] - origin).cross(m_points[ring[i + 1]] - origin);
  return sum;
}

double PolyhedronMaker::distanceOffPlane(const Polygon& polygon) const {
  const math::Point3d origin = m_points[polygon.rings[0][0]];
  double distance = 0;
  for (const Indices& ring : polygon.rings) {
    for (const std::uint32_t index : ring)
      distance = std::max(distance, std::abs((m_points[index] - origin).dot(polygon.normal)));
  }
  return distance;
}

void PolyhedronMaker::countEdges(const Polygon& polygon) {
  for (const Indices& ring : polygon.rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const std::uint32_t a = ring[i], b = ring[(i + 1) % ring.size()];
      Edge& edge = m_edges[edgeKey(a, b)];
      ++(a < b ? edge.forward : edge.backward);
    }
  }
}

// All corners hang together over polygons.
bool PolyhedronMaker::isOneBody() const {
  std::vector<std::uint32_t> parents(m_points.size());
  std::iota(parents.begin(), parents.end(), 0u);
  const auto rootOf = [&](std::uint32_t index) {
    while (parents[index] != index) index = parents[index] = parents[parents[index]];
    return index;
  };
  std::size_t bodies = parents.size();
  for (const Polygon& polygon : m_polygons) {
    const std::uint32_t first = polygon.rings[0][0];
    for (const Indices& ring : polygon.rings) {
      for (const std::uint32_t index : ring) {
        const std::uint32_t a = rootOf(first), b = rootOf(index);
        if (a == b) continue;
        parents[b] = a;
        --bodies;
      }
    }
  }
  return bodies == 1;
}

bool PolyhedronMaker::closes() const {
  return m_isSound && !m_polygons.empty() && m_offPlane <= math::Epsilon::current().length &&
         std::all_of(m_edges.begin(), m_edges.end(), [](const auto& entry) {
           return entry.second.forward == 1 && entry.second.backward == 1;
         });
}

TopoDS_Shape PolyhedronMaker::solid() {
  if (!closes() || !isOneBody()) return {};
  const double tolerance = std::max(Precision::Confusion(), m_offPlane);
  if (!makeEdges(tolerance)) return {};
  const BRep_Builder builder;
  TopoDS_Shell shell;
  builder.MakeShell(shell);
  for (const Polygon& polygon : m_polygons) builder.Add(shell, faceOf(polygon, tolerance));
  shell.Closed(true);
  TopoDS_Solid solid;
  builder.MakeSolid(solid);
  builder.Add(solid, shell);
  BRepLib::OrientClosedSolid(solid);
  return solid;
}

bool PolyhedronMaker::makeEdges(double tolerance) {
  const BRep_Builder builder;
  std::vector<TopoDS_Vertex> vertices(m_points.size());
  for (std::size_t i = 0; i < vertices.size(); ++i)
    builder.MakeVertex(vertices[i], toOpenCascade(m_points[i]), tolerance);
  for (auto& [key, edge] : m_edges) {
    BRepBuilderAPI_MakeEdge maker(vertices[key >> 32], vertices[key & 0xFFFFFFFF]);
    if (!maker.IsDone()) return false;
    edge.edge = maker.Edge();
    builder.UpdateEdge(edge.edge, tolerance);
  }
  return true;
}

TopoDS_Face PolyhedronMaker::faceOf(const Polygon& polygon, double tolerance) const {
  const BRep_Builder builder;
  TopoDS_Face face;
  const gp_Pnt origin = toOpenCascade(m_points[polygon.rings[0][0]]);
  builder.MakeFace(face, new Geom_Plane(origin, toOpenCascadeDirection(polygon.normal)), tolerance);
  for (const Indices& ring : polygon.rings) builder.Add(face, wireOf(ring));
  return face;
}

TopoDS_Wire PolyhedronMaker::wireOf(const Indices& ring) const {
  const BRep_Builder builder;
  TopoDS_Wire wire;
  builder.MakeWire(wire);
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const std::uint32_t a = ring[i], b = ring[(i + 1) % ring.size()];
    const TopoDS_Edge& edge = m_edges.at(edgeKey(a, b)).edge;
    builder.Add(wire, edge.Oriented(a < b ? TopAbs_FORWARD : TopAbs_REVERSED));
  }
  wire.Closed(true);
  return wire;
}

}  // namespace qor::fc
