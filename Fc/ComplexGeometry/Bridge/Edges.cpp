// Edges and vertices of topology for the solid modeller.

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRep_Builder.hxx>
#include <TopAbs.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>
#include <memory>

#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/ocMemoizer.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Report.h"
#include "Fc/Resource/Topology/FcEdge.h"
#include "Fc/Resource/Topology/FcEdgeCurve.h"
#include "Fc/Resource/Topology/FcOrientedEdge.h"
#include "Fc/Resource/Topology/FcVertex.h"
#include "Fc/Resource/Topology/FcVertexPoint.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::topology {
namespace {

using Edge = std::shared_ptr<TopoDS_Edge>;
using Vertex = std::shared_ptr<TopoDS_Vertex>;

constexpr const char* kFailed = "Could not create OpenCascade edge.";

struct Ends {
  Vertex start, end;
};

// Both or, with an assert where one is missing, none.
Ends endsOf(const FcEdge& edge, ocMemoizer& memoizer) {
  const char* const function = "qor::fc::resource::topology::FcEdge::ocEdge";
  if (!edge.EdgeStart()) {
    report("Missing FcEdge::EdgeStart", function, __LINE__);
    return {};
  }
  if (!edge.EdgeEnd()) {
    report("Missing FcEdge::EdgeEnd", function, __LINE__);
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

}  // namespace

Vertex FcVertex::ocVertex(ocMemoizer& /*memoizer*/) const {
  report("Cannot create point of FcVertex. FcVertexPoint should be used.",
         "qor::fc::resource::topology::FcVertex::ocVertex", __LINE__);
  return {};
}

Vertex FcVertexPoint::ocVertex(ocMemoizer& /*memoizer*/) const {
  const auto point = fcCast<geometry::FcCartesianPoint>(VertexGeometry());
  if (!point) {
    report("Missing FcVertexPoint::VertexGeometry",
           "qor::fc::resource::topology::FcVertexPoint::ocVertex", __LINE__);
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

Edge FcEdge::ocEdge(ocMemoizer& memoizer) const {
  const Ends ends = endsOf(*this, memoizer);
  if (!ends.start) return {};
  return guarded<Edge>(kFailed,
                       [&] { return made(BRepBuilderAPI_MakeEdge(*ends.start, *ends.end), true); });
}

Edge FcEdgeCurve::ocEdge(ocMemoizer& memoizer) const {
  const Ends ends = endsOf(*this, memoizer);
  if (!ends.start) return {};
  if (!EdgeGeometry()) {
    report("Missing FcEdgeCurve::EdgeGeometry", "qor::fc::resource::topology::FcEdgeCurve::ocEdge",
           __LINE__);
    return {};
  }
  const OcCurve curve = memoizer.getCurve(*EdgeGeometry());
  if (!curve) return {};
  return guarded<Edge>(kFailed, [&]() -> Edge {
    if (ends.start == ends.end) return made(BRepBuilderAPI_MakeEdge(*curve), SameSense());
    // The vertices stand in the sense of the edge; the modeller takes them in that of the curve.
    const TopoDS_Vertex& first = SameSense() ? *ends.start : *ends.end;
    const TopoDS_Vertex& last = SameSense() ? *ends.end : *ends.start;
    return made(BRepBuilderAPI_MakeEdge(*curve, first, last), SameSense());
  });
}

Edge FcOrientedEdge::ocEdge(ocMemoizer& memoizer) const {
  if (!EdgeElement()) {
    report("Missing FcOrientedEdge::EdgeElement",
           "qor::fc::resource::topology::FcOrientedEdge::ocEdge", __LINE__);
    return {};
  }
  const Edge element = memoizer.getEdge(*EdgeElement());
  if (!element) return {};
  auto edge = std::make_shared<TopoDS_Edge>(*element);
  if (!Orientation()) reverse(*edge);
  return edge;
}

}  // namespace qor::fc::resource::topology
