// Connected face sets and the items made of them for the solid modeller.

#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_Sewing.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Plane.hxx>
#include <ShapeFix_Shape.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <algorithm>
#include <memory>

#include "Fc/ComplexGeometry/Bridge/PlanarFace.h"
#include "Fc/ComplexGeometry/Bridge/PolyhedronMaker.h"
#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/ComplexGeometry/Bridge/Solids.h"
#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcConnectedFaceSet.h"
#include "Fc/Resource/Topology/FcEdgeLoop.h"
#include "Fc/Resource/Topology/FcFace.h"
#include "Fc/Resource/Topology/FcFaceOuterBound.h"
#include "Fc/Resource/Topology/FcFaceSurface.h"
#include "Fc/Resource/Topology/FcOpenShell.h"
#include "Fc/Resource/Topology/FcOrientedEdge.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::topology {
namespace {

using PolygonRings = std::vector<PolyhedronMaker::Ring>;

constexpr double kFaceTolerance = 1e-7;

TopoDS_Wire wireOf(const FcEdgeLoop& loop, ocMemoizer& memoizer) {
  BRepBuilderAPI_MakeWire wire;
  for (const auto& oriented : loop.EdgeList()) {
    const auto edge = oriented ? memoizer.getEdge(*oriented) : nullptr;
    if (!edge) {
      report("Skipping an unsupported or invalid FcFace. One or more edges could not be created.");
      return {};
    }
    wire.Add(*edge);
  }
  return wire.IsDone() ? wire.Wire() : TopoDS_Wire();
}

TopoDS_Wire wireOf(const FcPolyLoop& loop, ocMemoizer& memoizer) {
  const TopoDS_Wire wire = memoizer.getWire(loop);
  if (wire.IsNull()) report("Invalid FcPolyLoop");
  return wire;
}

// The outer bound first. Empty bounds and bounds without loop are left out.
std::vector<const FcFaceBound*> boundsOf(const FcFace& face) {
  std::vector<const FcFaceBound*> bounds;
  for (const auto& bound : face.Bounds())
    if (bound && bound->Bound()) bounds.push_back(bound.get());
  std::stable_partition(bounds.begin(), bounds.end(), [](const FcFaceBound* bound) {
    return fcCast<FcFaceOuterBound>(bound) != nullptr;
  });
  return bounds;
}

/// Makes one face after the other out of what their entities share.
class FaceMaker {
 public:
  // Null, with an assert, for a face that can't be made.
  TopoDS_Face operator()(const FcFace& face) {
    const auto* onSurface = fcCast<FcFaceSurface>(&face);
    TopoDS_Face result;
    const bool done = guardOpenCascade(
        [&] { result = onSurface ? onItsSurface(*onSurface) : onThePlaneOfItsLoops(face); },
        "Something went wrong in construction of a OpenCascade face in an advanced geometry.");
    return done ? result : TopoDS_Face();
  }

 private:
  TopoDS_Face onItsSurface(const FcFaceSurface& face) {
    if (!face.FaceSurface()) {
      report("Missing FcFaceSurface::FaceSurface");
      return {};
    }
    const OcSurface surface = m_memoizer.getSurface(*face.FaceSurface());
    if (!surface) {
      report("Skipping an unsupported or invalid surface in FcFaceSurface.");
      return {};
    }
    TopoDS_Face result;
    const BRep_Builder builder;
    // A surface of its own: an edge has one curve on each surface, and where two faces share one,
    // an edge at its seam would need two.
    const auto own = opencascade::handle<Geom_Surface>::DownCast((*surface)->Copy());
    builder.MakeFace(result, own, kFaceTolerance);
    for (const FcFaceBound* bound : boundsOf(face)) {
      const TopoDS_Wire wire = orientedWire(*bound, !face.SameSense());
      if (!wire.IsNull()) builder.Add(result, wire);
    }
    return result;
  }

  // The plane lies so that the first wire runs counter-clockwise round it; holes are turned so that
  // they run the other way.
  TopoDS_Face onThePlaneOfItsLoops(const FcFace& face) {
    TopoDS_Face result;
    const BRep_Builder builder;
    gp_Dir normal;
    for (const FcFaceBound* bound : boundsOf(face)) {
      TopoDS_Wire wire = orientedWire(*bound, false);
      if (wire.IsNull()) continue;
      const gp_Vec area = toOpenCascade(areaVector(wire));
      if (result.IsNull()) {
        if (!fcCast<FcPolyLoop>(bound->Bound()) || area.Magnitude() <= gp::Resolution()) continue;
        normal = gp_Dir(area);
        builder.MakeFace(result, planeThrough(wire, normal), kFaceTolerance);
      } else if (area.Dot(normal) > 0) {
        wire.Reverse();
      }
      builder.Add(result, wire);
    }
    if (result.IsNull()) report("Missing wire plane. Invalid IFC data?");
    return result;
  }

  static opencascade::handle<Geom_Plane> planeThrough(const TopoDS_Wire& wire,
                                                      const gp_Dir& normal) {
    const TopExp_Explorer vertices(wire, TopAbs_VERTEX);
    return new Geom_Plane(BRep_Tool::Pnt(TopoDS::Vertex(vertices.Current())), normal);
  }

  TopoDS_Wire orientedWire(const FcFaceBound& bound, bool reversedFace) {
    TopoDS_Wire wire;
    if (const auto* edges = fcCast<FcEdgeLoop>(bound.Bound().get()))
      wire = wireOf(*edges, m_memoizer);
    else if (const auto* points = fcCast<FcPolyLoop>(bound.Bound().get()))
      wire = wireOf(*points, m_memoizer);
    else
      report("Unsupported IfcEdge type");
    if (!wire.IsNull() && bound.Orientation() == reversedFace) wire.Reverse();
    return wire;
  }

  ocMemoizer m_memoizer;
};

// The polygons of a plain face whose bounds are all polygons; none for any other.
PolygonRings polygonOf(const FcFace& face, const FcParams& params) {
  PolygonRings rings;
  if (fcCast<FcFaceSurface>(&face)) return {};
  for (const FcFaceBound* bound : boundsOf(face)) {
    const auto* loop = fcCast<FcPolyLoop>(bound->Bound().get());
    if (!loop || std::count(loop->Polygon().begin(), loop->Polygon().end(), nullptr) > 0) return {};
    rings.push_back(loop->points3dGet(params));
    if (!bound->Orientation()) std::reverse(rings.back().begin(), rings.back().end());
  }
  return rings;
}

// Null unless all faces are polygons that close.
TopoDS_Shape polyhedron(const std::vector<std::shared_ptr<FcFace>>& faces, const FcParams& params) {
  PolyhedronMaker maker;
  for (const auto& face : faces) {
    if (!face) continue;
    const PolygonRings rings = polygonOf(*face, params);
    if (rings.empty()) return {};
    maker.addPolygon(rings);
  }
  return maker.solid();
}

TopoDS_Shape sewn(const std::vector<std::shared_ptr<FcFace>>& faces) {
  const double general = math::Epsilon::current().general;
  BRepBuilderAPI_Sewing sewing(general, true, true, true, false);
  FaceMaker faceOf;
  for (const auto& face : faces) {
    const TopoDS_Face made = face ? faceOf(*face) : TopoDS_Face();
    if (!made.IsNull()) sewing.Add(made);
  }
  sewing.Perform();
  if (sewing.SewedShape().IsNull()) return {};
  ShapeFix_Shape fix(sewing.SewedShape());
  fix.SetMaxTolerance(math::Epsilon::current().length);
  fix.Perform();
  return solidsOfClosedShells(fix.Shape());
}

}  // namespace

Shapes shapesOf(const FcConnectedFaceSet& item, const FcParams& params) {
  TopoDS_Shape shape;
  guardOpenCascade(
      [&] {
        shape = polyhedron(item.CfsFaces(), params);
        if (shape.IsNull()) shape = sewn(item.CfsFaces());
      },
      "Something went wrong in construction of a OpenCascade shell.");
  if (shape.IsNull()) return {};
  return {shape};
}

}  // namespace qor::fc::resource::topology
