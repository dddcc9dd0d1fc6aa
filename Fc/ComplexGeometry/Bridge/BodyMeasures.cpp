#include "Fc/ComplexGeometry/Bridge/BodyMeasures.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <NCollection_DataMap.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <cmath>

#include "Fc/HelperFunctionsOC.h"

namespace qor::fc {
namespace {

bool isClosedSkin(const TopoDS_Shape& shape) {
  NCollection_DataMap<TopoDS_Shape, int, TopTools_ShapeMapHasher> uses;
  for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
    for (TopExp_Explorer edges(faces.Current(), TopAbs_EDGE); edges.More(); edges.Next()) {
      const TopoDS_Edge& edge = TopoDS::Edge(edges.Current());
      const bool forward = edge.Orientation() == TopAbs_FORWARD;
      if (BRep_Tool::Degenerated(edge) || (!forward && edge.Orientation() != TopAbs_REVERSED))
        continue;
      if (int* balance = uses.ChangeSeek(edge))
        *balance += forward ? 1 : -1;
      else
        uses.Bind(edge, forward ? 1 : -1);
    }
  }
  for (decltype(uses)::Iterator use(uses); use.More(); use.Next())
    if (use.Value() != 0) return false;
  return true;
}

void add(const TopoDS_Shape& shape, BodyMeasures& measures) {
  GProp_GProps volume, area;
  BRepGProp::VolumeProperties(shape, volume);
  BRepGProp::SurfaceProperties(shape, area);
  measures.isClosed = measures.isClosed && isClosedSkin(shape);
  measures.volume += volume.Mass();
  measures.area += area.Mass();
}

}  // namespace

std::optional<BodyMeasures> measuresOf(const std::vector<TopoDS_Shape>& shapes) {
  BodyMeasures measures{.isClosed = true};
  try {
    for (const TopoDS_Shape& shape : shapes)
      if (!shape.IsNull()) add(shape, measures);
  } catch (const Standard_Failure&) {
    return {};
  }
  if (!std::isfinite(measures.volume) || !std::isfinite(measures.area)) return {};
  return measures;
}

math::Extent boxAround(const std::vector<TopoDS_Shape>& shapes) {
  math::Extent extent;
  guardOpenCascade(
      [&] {
        Bnd_Box box;
        for (const TopoDS_Shape& shape : shapes)
          if (!shape.IsNull()) BRepBndLib::Add(shape, box, false);
        if (box.IsVoid()) return;
        const gp_Pnt low = box.CornerMin(), high = box.CornerMax();
        extent = {{low.X(), low.Y(), low.Z()}, {high.X(), high.Y(), high.Z()}};
      },
      "OpenCascade could not measure a shape.");
  return extent;
}

}  // namespace qor::fc
