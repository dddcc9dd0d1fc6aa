// Edges and vertices of topology for the solid modeller.

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRep_Builder.hxx>
#include <TopAbs.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>
#include <memory>

#include "Fc/ComplexGeometry/Bridge/FormOfClass.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/Bridge/OpenCascadeModeller.h"
#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Topology/FcEdge.h"
#include "Fc/Resource/Topology/FcEdgeCurve.h"
#include "Fc/Resource/Topology/FcOrientedEdge.h"
#include "Fc/Resource/Topology/FcVertex.h"
#include "Fc/Resource/Topology/FcVertexPoint.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc {
namespace resource::topology {
namespace {

using Edge = std::shared_ptr<TopoDS_Edge>;
using Vertex = std::shared_ptr<TopoDS_Vertex>;

constexpr const char* kFailed = "Could not create OpenCascade edge.";

struct Ends {
  Vertex start, end;
};

// Both or, with an assert where one is missing, none.
Ends endsOf(const FcEdge& edge, ocMemoizer& memoizer) {
  if (!edge.EdgeStart()) {
    report("Missing FcEdge::EdgeStart");
    return {};
  }
  if (!edge.EdgeEnd()) {
    report("Missing FcEdge::EdgeEnd");
    return {};
  }
  Ends ends{memoizer.getVertex(*edge.EdgeStart()), memoizer.getVertex(*edge.EdgeEnd())};
  return ends.start && ends.end ? ends : Ends{};
}

void reverse(TopoDS_Edge& edge) { edge.Orientation(TopAbs::Reverse(edge.Orientation())); }

Edge made(BRepBuilderAPI_MakeEdge maker, bool forward) {
  if (!maker.IsDone()) return {};
  auto edge = std::make_shared<TopoDS_Edge>(maker.Edge());
  if (!forward) reverse(*edge);
  return edge;
}

Vertex vertexOf(const FcVertexPoint& vertexPoint) {
  const auto point = fcCast<geometry::FcCartesianPoint>(vertexPoint.VertexGeometry());
  if (!point) {
    report("Missing FcVertexPoint::VertexGeometry");
    return {};
  }
  return guarded<Vertex>(kFailed, [&] {
    auto vertex = std::make_shared<TopoDS_Vertex>();
    const BRep_Builder builder;
    builder.MakeVertex(*vertex);
    builder.UpdateVertex(*vertex, toOpenCascade(point->point()), math::Epsilon::current().length);
    return vertex;
  });
}

Edge edgeOf(const FcEdge& edge, ocMemoizer& memoizer) {
  const Ends ends = endsOf(edge, memoizer);
  if (!ends.start) return {};
  return guarded<Edge>(kFailed,
                       [&] { return made(BRepBuilderAPI_MakeEdge(*ends.start, *ends.end), true); });
}

Edge edgeOf(const FcEdgeCurve& edge, ocMemoizer& memoizer) {
  const Ends ends = endsOf(edge, memoizer);
  if (!ends.start) return {};
  if (!edge.EdgeGeometry()) {
    report("Missing FcEdgeCurve::EdgeGeometry");
    return {};
  }
  const OcCurve curve = memoizer.getCurve(*edge.EdgeGeometry());
  if (!curve) return {};
  return guarded<Edge>(kFailed, [&]() -> Edge {
    if (ends.start == ends.end) return made(BRepBuilderAPI_MakeEdge(*curve), edge.SameSense());
    // The vertices stand in the sense of the edge; the modeller takes them in that of the curve.
    const TopoDS_Vertex& first = edge.SameSense() ? *ends.start : *ends.end;
    const TopoDS_Vertex& last = edge.SameSense() ? *ends.end : *ends.start;
    return made(BRepBuilderAPI_MakeEdge(*curve, first, last), edge.SameSense());
  });
}

Edge edgeOf(const FcOrientedEdge& oriented, ocMemoizer& memoizer) {
  if (!oriented.EdgeElement()) {
    report("Missing FcOrientedEdge::EdgeElement");
    return {};
  }
  const Edge element = memoizer.getEdge(*oriented.EdgeElement());
  if (!element) return {};
  auto edge = std::make_shared<TopoDS_Edge>(*element);
  if (!oriented.Orientation()) reverse(*edge);
  return edge;
}

class EdgeForm : public FormOfClass<Edge> {
 public:
  explicit EdgeForm(ocMemoizer& memoizer) : m_memoizer(memoizer) {}

  using FormOfClass::visit;
  bool visit(const FcEdge& edge) override { return give(edgeOf(edge, m_memoizer)); }
  bool visit(const FcEdgeCurve& edge) override { return give(edgeOf(edge, m_memoizer)); }
  bool visit(const FcOrientedEdge& edge) override { return give(edgeOf(edge, m_memoizer)); }

 private:
  ocMemoizer& m_memoizer;
};

}  // namespace
}  // namespace resource::topology

std::shared_ptr<TopoDS_Edge> OpenCascadeModeller::edge(const resource::topology::FcEdge& edge,
                                                       ocMemoizer& memoizer) const {
  return resource::topology::EdgeForm(memoizer).of(edge).value_or(nullptr);
}

std::shared_ptr<TopoDS_Vertex> OpenCascadeModeller::vertex(
    const resource::topology::FcVertex& vertex, ocMemoizer& /*memoizer*/) const {
  if (const auto* point = fcCast<resource::topology::FcVertexPoint>(&vertex))
    return resource::topology::vertexOf(*point);
  report("Cannot create point of FcVertex. FcVertexPoint should be used.");
  return {};
}

}  // namespace qor::fc
