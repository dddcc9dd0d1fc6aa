#include "Fc/ComplexGeometry/FcGetSurfacesTask.h"

#include <BRepTools.hxx>
#include <BRepTools_WireExplorer.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <utility>
#include <vector>

#include "Fc/ComplexGeometry/FcSurfacesResult.h"
#include "Fc/ComplexGeometry/ShapesOfItem.h"
#include "Qor/Math/MatrixFactory.h"

namespace qor::fc {
namespace {

using Polygons = std::vector<math::_3d::Polygon>;

void appendOutline(const TopoDS_Face& face, Polygons& polygons) {
  const TopoDS_Wire wire = BRepTools::OuterWire(face);
  if (wire.IsNull()) return;
  std::vector<math::Point3d> points;
  for (BRepTools_WireExplorer edges(wire, face); edges.More(); edges.Next()) {
    const gp_Pnt point = BRep_Tool::Pnt(edges.CurrentVertex());
    points.emplace_back(point.X(), point.Y(), point.Z());
  }
  if (points.size() <= 2) return;
  const auto plane = math::_3d::MatrixFactory::fromPoints(points);
  if (!plane) return;
  polygons.emplace_back(math::_2d::Polygon(plane->inverse().convert(points)), *plane);
}

void appendOutlines(const TopoDS_Shape& shape, Polygons& polygons) {
  for (TopExp_Explorer shells(shape, TopAbs_SHELL); shells.More(); shells.Next()) {
    for (TopExp_Explorer faces(shells.Current(), TopAbs_FACE); faces.More(); faces.Next())
      appendOutline(TopoDS::Face(faces.Current()), polygons);
  }
}

}  // namespace

FcGetSurfacesTask::FcGetSurfacesTask(
    FcParams params, std::shared_ptr<const resource::geometry::FcRepresentationItem> item,
    const math::Matrix& matrix)
    : FcComplexGeometryTask(std::move(params)), m_item(std::move(item)), m_matrix(matrix) {}

FcGetSurfacesTask::~FcGetSurfacesTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcGetSurfacesTask::process() const {
  Polygons polygons;
  for (TopoDS_Shape& shape : shapesOfItem(*m_item, params())) {
    if (shape.IsNull()) continue;
    transformOpenCascadeShape(shape, m_matrix);
    guardOpenCascade([&] { appendOutlines(shape, polygons); },
                     "OpenCascade could not walk the faces of a shape.");
  }
  return std::make_unique<FcSurfacesResult>(std::move(polygons));
}

}  // namespace qor::fc
