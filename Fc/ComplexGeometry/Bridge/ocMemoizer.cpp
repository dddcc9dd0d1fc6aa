#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepLib_MakeWire.hxx>
#include <TopAbs.hxx>
#include <functional>
#include <vector>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Resource/Topology/FcEdge.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Fc/Resource/Topology/FcVertex.h"

namespace qor::fc {
namespace {

// The entry is there, and null, while it is built: an entity that refers to itself ends there.
template <class Table, class Entity, class Build>
typename Table::mapped_type remembered(Table& table, const Entity& entity, const Build& build) {
  const auto [entry, isNew] = table.try_emplace(&entity);
  if (!isNew) return entry->second;
  auto value = build();
  table[&entity] = value;
  return value;
}

// There are three different points, by identity.
template <class Points>
bool hasThreePoints(const Points& points) {
  const auto* first = points.front().get();
  const auto* second = first;
  for (const auto& point : points) {
    if (point.get() == first || point.get() == second) continue;
    if (second != first) return true;
    second = point.get();
  }
  return false;
}

}  // namespace

ocMemoizer::Curve ocMemoizer::getCurve(const resource::geometry::FcCurve& curve) {
  return remembered(m_curves, curve, [&] { return curve.ocCurve(*this); });
}

ocMemoizer::Curve ocMemoizer::getCurve(const resource::profile::FcProfileDef& profile) {
  return remembered(m_curves, profile, [&] { return profile.ocCurve(*this); });
}

ocMemoizer::Surface ocMemoizer::getSurface(const resource::geometry::FcSurface& surface) {
  return remembered(m_surfaces, surface, [&] { return surface.ocSurface(*this); });
}

std::shared_ptr<TopoDS_Edge> ocMemoizer::getEdge(const resource::topology::FcEdge& edge) {
  return remembered(m_edges, edge, [&] { return edge.ocEdge(*this); });
}

std::shared_ptr<TopoDS_Vertex> ocMemoizer::getVertex(const resource::topology::FcVertex& vertex) {
  return remembered(m_vertices, vertex, [&] { return vertex.ocVertex(*this); });
}

TopoDS_Wire ocMemoizer::getWire(const resource::topology::FcPolyLoop& loop) {
  const auto& points = loop.Polygon();
  if (points.size() < 3) {
    report("Not enough points in FcPolyLoop.");
    return {};
  }
  for (const auto& point : points) {
    if (point) continue;
    report("Assertion failed: expect valid FcCartesianPoint");
    return {};
  }
  if (!hasThreePoints(points)) {
    report("Not enough unique points in FcPolyLoop.");
    return {};
  }
  BRepLib_MakeWire wire;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point& current = *points[i];
    const Point& next = *points[(i + 1) % points.size()];
    if (&next == &current) continue;  // of repetitions the last has the edge
    const TopoDS_Edge edge = pointEdge(current, next);
    if (!edge.IsNull()) wire.Add(edge);
  }
  return wire.IsDone() ? wire.Wire() : TopoDS_Wire();
}

const TopoDS_Vertex& ocMemoizer::pointVertex(const Point& point) {
  TopoDS_Vertex& vertex = m_pointVertices[&point];
  if (vertex.IsNull()) {
    const auto& at = point.Coordinates();
    vertex = BRepBuilderAPI_MakeVertex(toOpenCascade(math::Point3d(at[0], at[1], at[2])));
  }
  return vertex;
}

TopoDS_Edge ocMemoizer::pointEdge(const Point& start, const Point& end) {
  const bool backwards = std::less<>()(&end, &start);
  const auto key = backwards ? std::pair(&end, &start) : std::pair(&start, &end);
  const auto [entry, isNew] = m_pointEdges.try_emplace(key);
  if (isNew) {
    BRepBuilderAPI_MakeEdge edge(pointVertex(*key.first), pointVertex(*key.second));
    if (edge.IsDone()) entry->second = edge.Edge();
  }
  TopoDS_Edge edge = entry->second;
  if (backwards && !edge.IsNull()) edge.Orientation(TopAbs::Reverse(edge.Orientation()));
  return edge;
}

}  // namespace qor::fc
