// Tessellated items for the solid modeller.

#include <BRepBuilderAPI_Sewing.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <utility>

#include "Fc/ComplexGeometry/Bridge/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/Bridge/PlanarFace.h"
#include "Fc/ComplexGeometry/Bridge/PolyhedronMaker.h"
#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/ComplexGeometry/Bridge/Solids.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Qor/Draw/TriangulatedFaceSetOpenGL.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using Ring = std::vector<math::Point3d>;
using Polygon = std::vector<Ring>;  // an outer ring and its holes

TopoDS_Wire wireOf(const Ring& ring, const char* invalid) {
  const TopoDS_Wire wire = getClosedWireFromPoints(ring);
  if (wire.IsNull())
    report(invalid);
  else
    raiseTolerance(wire, math::Epsilon::current().length);
  return wire;
}

void addPolygon(BRepBuilderAPI_Sewing& faces, const Polygon& rings) {
  if (rings.empty()) return;
  const TopoDS_Wire outer = wireOf(rings.front(), "Invalid polygon");
  if (outer.IsNull()) return;
  std::vector<TopoDS_Wire> holes;
  for (std::size_t i = 1; i < rings.size(); ++i) {
    const TopoDS_Wire hole = wireOf(rings[i], "Invalid polygon hole");
    if (!hole.IsNull()) holes.push_back(hole);
  }
  const TopoDS_Face face = faceWithin(outer, holes, true);
  if (!face.IsNull()) {
    faces.Add(face);
    return;
  }
  report("Could not create opencascade face of FcFace. Its points was probably not on a plane.");
}

TopoDS_Shape sewn(const std::vector<Polygon>& polygons) {
  BRepBuilderAPI_Sewing faces(math::Epsilon::current().general, true, true, true, false);
  for (const Polygon& polygon : polygons) addPolygon(faces, polygon);
  faces.Perform();
  return solidsOfClosedShells(faces.SewedShape());
}

Shapes shapeOf(const std::vector<Polygon>& polygons) {
  return {tryOpenCascadeConstruction<TopoDS_Shape>(
      [&] {
        PolyhedronMaker polyhedron;
        for (const Polygon& polygon : polygons) polyhedron.addPolygon(polygon);
        const TopoDS_Shape solid = polyhedron.solid();
        return solid.IsNull() ? sewn(polygons) : solid;
      },
      "Open Cascade failed in construction of shape.", "Constructed open cascade shape was null.")};
}

}  // namespace

Shapes shapesOf(const FcPolygonalFaceSet& item, const FcParams& /*params*/) {
  std::vector<Polygon> polygons;
  item.forEachPolygon([&](const Polygon& polygon) { polygons.push_back(polygon); });
  return shapeOf(polygons);
}

Shapes shapesOf(const FcTriangulatedFaceSet& item, const FcParams& /*params*/) {
  const auto triangles = item.createQorTriangulatedFaceSet();
  if (!triangles) return {};
  const std::vector<math::Point3d>& points = triangles->coordinates();
  std::vector<Polygon> polygons;
  for (const auto& [a, b, c] : triangles->triangles)
    polygons.push_back({{points[a], points[b], points[c]}});
  return shapeOf(polygons);
}

std::vector<generate::draw::PolygonalFaceSetOpenGL> FcPolygonalFaceSet::getFaceSetsFromShapes(
    const Shapes& shapes, const math::CurveDiscretization& discretization) {
  return faceSetsFromShapes(shapes, discretization);
}

}  // namespace qor::fc::resource::geometricmodel
