// Swept area solids for the solid modeller: each face of the profile, extruded or turned.

#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <cmath>
#include <functional>
#include <gp_Ax1.hxx>
#include <limits>

#include "Fc/ComplexGeometry/Bridge/PolyhedronMaker.h"
#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolid.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
namespace {

// A solid for each face, moved by the solid's position; a null shape for one that fails.
Shapes sweptFaces(const FcSweptAreaSolid& solid, const FcParams& params,
                  const std::function<TopoDS_Shape(const TopoDS_Face&)>& sweep) {
  Shapes solids;
  for (const TopoDS_Face& face : solid.SweptArea()->ocProfile(params)) {
    if (face.IsNull()) continue;
    TopoDS_Shape swept = tryOpenCascadeConstruction<TopoDS_Shape>(
        [&] { return TopoDS::Solid(sweep(face)); },  // throws for any other shape
        "OpenCascade extrusion operation failed or result is no solid.",
        "OpenCascade extrusion operation did not fail, but the resulting shape is Null.");
    if (solid.Position()) transformOpenCascadeShape(swept, solid.Position()->placementGet());
    solids.push_back(swept);
  }
  return solids;
}

// Of the faces of all sets together, which may be bent.
TopoDS_Shape solidWithin(const std::vector<generate::draw::PolygonalFaceSetOpenGL>& sets) {
  PolyhedronMaker maker(std::numeric_limits<double>::infinity());
  for (const auto& set : sets) {
    const auto ringOf = [&set](const std::vector<std::uint32_t>& indices) {
      PolyhedronMaker::Ring ring;
      for (const std::uint32_t index : indices) ring.push_back(set.coordinates[index]);
      return ring;
    };
    for (const auto& face : set.faces) {
      std::vector<PolyhedronMaker::Ring> rings{ringOf(face.outer)};
      for (const auto& hole : face.holes) rings.push_back(ringOf(hole));
      maker.addPolygon(rings);
    }
  }
  return maker.solid();
}

}  // namespace

Shapes shapesOf(const FcExtrudedAreaSolid& item, const FcParams& params) {
  if (!requireThat(item, item.Depth() > math::Epsilon::current().length,
                   "Depth should be a positive distance") ||
      !requireThat(item, item.SweptArea() != nullptr, "Swept area should exist") ||
      !requireThat(item, item.ExtrudedDirection() != nullptr, "Extrude direction should exist"))
    return {};
  const gp_Vec extrusion =
      toOpenCascade(item.ExtrudedDirection()->vector().normalized() * item.Depth());
  return sweptFaces(item, params, [&](const TopoDS_Face& face) {
    return BRepPrimAPI_MakePrism(face, extrusion, false, true).Shape();
  });
}

Shapes shapesOf(const FcExtrudedAreaSolidTapered& item, const FcParams& params) {
  Shapes solids;
  const math::Matrix position = item.validPosition();
  for (const auto& sets : item.faceSets(params)) {
    TopoDS_Shape solid = tryOpenCascadeConstruction<TopoDS_Shape>(
        [&] { return solidWithin(sets); },
        "OpenCascade extrusion operation failed or result is no solid.",
        "OpenCascade extrusion operation did not fail, but the resulting shape is Null.");
    transformOpenCascadeShape(solid, position);
    solids.push_back(solid);
  }
  return solids;
}

Shapes shapesOf(const FcRevolvedAreaSolid& item, const FcParams& params) {
  const auto location =
      item.Axis() ? fcCast<geometry::FcCartesianPoint>(item.Axis()->Location()) : nullptr;
  if (!requireThat(item, location != nullptr, "Axis should exist")) return {};
  const math::Point3d origin = location->point();
  const math::Vector3d axis =
      item.Axis()->Axis() ? item.Axis()->Axis()->vector() : math::Vector3d(0, 0, 1);
  const double tolerance = math::Epsilon::current().length;
  if (!requireThat(item, std::abs(origin.z) <= tolerance,
                   "Axis location must have a Z value of 0") ||
      !requireThat(item, std::abs(axis.z) <= tolerance,
                   "Axis direction must have a Z value of 0") ||
      !requireThat(item, item.SweptArea() != nullptr, "Swept area should exist"))
    return {};
  const double angle = item.Angle();
  return sweptFaces(item, params, [&](const TopoDS_Face& face) {
    const gp_Ax1 turning(toOpenCascade(origin), toOpenCascadeDirection(axis));
    return BRepPrimAPI_MakeRevol(face, turning, angle).Shape();
  });
}

}  // namespace qor::fc::resource::geometricmodel
