#include "Fc/ComplexGeometry/Bridge/PlanarFace.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepTools_WireExplorer.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Plane.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include "Fc/HelperFunctionsOC.h"

namespace qor::fc {
namespace {

// Null for a face that isn't planar.
opencascade::handle<Geom_Plane> planeOf(const TopoDS_Face& face) {
  return opencascade::handle<Geom_Plane>::DownCast(BRep_Tool::Surface(face));
}

TopoDS_Wire turnedAgainst(const gp_Dir& normal, const TopoDS_Wire& hole) {
  const bool alike = toOpenCascade(areaVector(hole)).Dot(normal) > 0;
  return alike ? TopoDS::Wire(hole.Reversed()) : hole;
}

}  // namespace

TopoDS_Face faceWithin(const TopoDS_Wire& outer, const std::vector<TopoDS_Wire>& holes,
                       bool onlyPlane) {
  BRepBuilderAPI_MakeFace face(outer, onlyPlane);
  if (!face.IsDone()) return {};
  const auto plane = planeOf(face.Face());
  for (const TopoDS_Wire& hole : holes)
    face.Add(plane.IsNull() ? hole : turnedAgainst(plane->Axis().Direction(), hole));
  return face.Face();
}

math::Vector3d areaVector(const TopoDS_Wire& wire) {
  std::optional<gp_Pnt> origin;
  gp_Vec previous, sum;
  for (BRepTools_WireExplorer edges(wire); edges.More(); edges.Next()) {
    const gp_Pnt point = BRep_Tool::Pnt(edges.CurrentVertex());
    if (!origin) origin = point;
    const gp_Vec arm(*origin, point);
    sum += previous.Crossed(arm);
    previous = arm;
  }
  return {sum.X(), sum.Y(), sum.Z()};
}

void raiseTolerance(const TopoDS_Wire& wire, double tolerance) {
  const BRep_Builder builder;
  for (TopExp_Explorer edges(wire, TopAbs_EDGE); edges.More(); edges.Next()) {
    builder.UpdateEdge(TopoDS::Edge(edges.Current()), tolerance);
    for (TopExp_Explorer ends(edges.Current(), TopAbs_VERTEX); ends.More(); ends.Next())
      builder.UpdateVertex(TopoDS::Vertex(ends.Current()), tolerance);
  }
}

}  // namespace qor::fc
