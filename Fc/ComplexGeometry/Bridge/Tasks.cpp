// What the tasks of the complex geometry processor ask of the solid modeller.

#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepTools.hxx>
#include <BRepTools_WireExplorer.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <optional>
#include <utility>
#include <vector>

#include "Fc/ComplexGeometry/Bridge/BodyMeasures.h"
#include "Fc/ComplexGeometry/Bridge/BooleanOperations.h"
#include "Fc/ComplexGeometry/Bridge/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/Bridge/OpenCascadeModeller.h"
#include "Fc/ComplexGeometry/Bridge/ShapesOfItem.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Qor/Math/Epsilon.h"
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

std::vector<TopoDS_Shape> placedShapes(const SolidModeller::PlacedItem& item,
                                       const FcParams& params) {
  std::vector<TopoDS_Shape> shapes = shapesOfItem(*item.first, params);
  for (TopoDS_Shape& shape : shapes) transformOpenCascadeShape(shape, item.second);
  return shapes;
}

// Empty when the calculation fails, which says nothing of the distance.
std::optional<double> distanceOf(const TopoDS_Shape& first, const TopoDS_Shape& second) {
  if (first.IsNull() || second.IsNull()) return {};
  std::optional<double> result;
  guardOpenCascade(
      [&] {
        const BRepExtrema_DistShapeShape extrema(first, second, Extrema_ExtFlag_MINMAX,
                                                 Extrema_ExtAlgo_Grad);
        if (extrema.IsDone()) result = extrema.Value();
      },
      "OpenCascade could not calculate the distance of two shapes.");
  return result;
}

}  // namespace

SolidModeller::FaceSets OpenCascadeModeller::faceSets(
    const resource::geometry::FcRepresentationItem& item, const FcParams& params) const {
  return faceSetsFromShapes(shapesOfItem(item, params), params.curveDiscretization());
}

math::Extent OpenCascadeModeller::boxOf(const resource::geometry::FcRepresentationItem& item,
                                        const FcParams& params) const {
  return boxAround(shapesOfItem(item, params));
}

std::optional<SolidModeller::FaceSets> OpenCascadeModeller::cut(
    const PlacedItem& item, const std::vector<PlacedItem>& tools, const FcParams& params) const {
  std::vector<TopoDS_Shape> shapes = shapesOfItem(*item.first, params);
  std::erase_if(shapes, [](const TopoDS_Shape& shape) { return shape.IsNull(); });
  if (shapes.empty()) return {};
  const math::Matrix inverse = item.second.inverse();
  std::vector<TopoDS_Shape> toolShapes;
  for (const auto& [tool, matrix] : tools) {
    for (TopoDS_Shape& shape : shapesOfItem(*tool, params)) {
      transformOpenCascadeShape(shape, matrix * inverse);
      if (!shape.IsNull()) toolShapes.push_back(std::move(shape));
    }
  }
  if (!toolShapes.empty()) {
    const double fuzzyValue = math::Epsilon::current().length;
    for (TopoDS_Shape& shape : shapes) shape = cutShapes({shape}, toolShapes, fuzzyValue);
  }
  return faceSetsFromShapes(shapes, params.curveDiscretization());
}

std::vector<math::_3d::Polygon> OpenCascadeModeller::surfaces(const PlacedItem& item,
                                                              const FcParams& params) const {
  Polygons polygons;
  for (const TopoDS_Shape& shape : placedShapes(item, params)) {
    if (shape.IsNull()) continue;
    guardOpenCascade([&] { appendOutlines(shape, polygons); },
                     "OpenCascade could not walk the faces of a shape.");
  }
  return polygons;
}

std::optional<double> OpenCascadeModeller::distance(const PlacedItem& first,
                                                    const PlacedItem& second,
                                                    const FcParams& params) const {
  const auto firstShapes = placedShapes(first, params);
  const auto secondShapes = placedShapes(second, params);
  std::optional<double> least;
  for (const TopoDS_Shape& a : firstShapes) {
    for (const TopoDS_Shape& b : secondShapes) {
      const auto found = distanceOf(a, b);
      if (found && (!least || *found < *least)) least = found;
    }
  }
  return least;
}

}  // namespace qor::fc

const qor::fc::SolidModeller* fcOpenCascadeModeller() {
  static const qor::fc::OpenCascadeModeller modeller;
  return &modeller;
}
