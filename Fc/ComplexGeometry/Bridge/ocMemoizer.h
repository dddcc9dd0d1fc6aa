#pragma once

#include <Geom_Curve.hxx>
#include <Geom_Surface.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>
#include <TopoDS_Wire.hxx>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>

#include "Qor/Platform/Export.h"

namespace qor::fc {

namespace resource::geometry {
class FcCartesianPoint;
class FcCurve;
class FcSurface;
}  // namespace resource::geometry
namespace resource::profile {
class FcProfileDef;
}
namespace resource::topology {
class FcEdge;
class FcPolyLoop;
class FcVertex;
}  // namespace resource::topology

/// What the entities of one face-based item were turned into, so that edges and vertices which its
/// faces share stay shared in the shape, and sewing has little left to do.
///
/// Each `get` looks up by the entity's identity, else builds and remembers; null when the entity
/// can't be built, which is asked and reported once. Lives on the stack of one conversion, and the
/// entities must outlive it. Belongs to one thread.
class QOR_API ocMemoizer {
 public:
  using Curve = std::shared_ptr<opencascade::handle<Geom_Curve>>;
  using Surface = std::shared_ptr<opencascade::handle<Geom_Surface>>;

  ocMemoizer() = default;
  ocMemoizer(const ocMemoizer&) = delete;
  ocMemoizer& operator=(const ocMemoizer&) = delete;

  Curve getCurve(const resource::geometry::FcCurve& curve);
  Curve getCurve(const resource::profile::FcProfileDef& profile);
  Surface getSurface(const resource::geometry::FcSurface& surface);
  std::shared_ptr<TopoDS_Edge> getEdge(const resource::topology::FcEdge& edge);
  std::shared_ptr<TopoDS_Vertex> getVertex(const resource::topology::FcVertex& vertex);

  /// The ring of straight edges between the loop's points; two loops that run along one edge in
  /// opposite directions share it. Not remembered itself. A null wire, with an assert, when the
  /// loop has no three points, no two different ones, or one that is missing.
  TopoDS_Wire getWire(const resource::topology::FcPolyLoop& loop);

 private:
  using Point = resource::geometry::FcCartesianPoint;

  const TopoDS_Vertex& pointVertex(const Point& point);
  /// Runs from `start` to `end`; null when the two lie at one place.
  TopoDS_Edge pointEdge(const Point& start, const Point& end);

  std::unordered_map<const void*, Curve> m_curves;
  std::unordered_map<const resource::geometry::FcSurface*, Surface> m_surfaces;
  std::unordered_map<const resource::topology::FcVertex*, std::shared_ptr<TopoDS_Vertex>>
      m_vertices;
  std::unordered_map<const resource::topology::FcEdge*, std::shared_ptr<TopoDS_Edge>> m_edges;
  std::unordered_map<const Point*, TopoDS_Vertex> m_pointVertices;
  std::map<std::pair<const Point*, const Point*>, TopoDS_Edge> m_pointEdges;
};

}  // namespace qor::fc
