// Half-spaces as what differences cut with.

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakeHalfSpace.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Solid.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Pln.hxx>

#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"
#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
namespace {

TopoDS_Solid ocHalfSpaceSolid(const math::Point3d& point, const math::Vector3d& vector) {
  return tryOpenCascadeConstruction<TopoDS_Solid>(
      [&] {
        const gp_Pln plane(toOpenCascade(point), toOpenCascadeDirection(vector));
        const BRepBuilderAPI_MakeFace face(plane);
        return BRepPrimAPI_MakeHalfSpace(face.Face(), toOpenCascade(point + vector)).Solid();
      },
      "OpenCascade half space creation failed.",
      "OpenCascade half space creation did not fail, but the resulting shape is Null.");
}

// Over the rectangle of `box` in the XY plane of the frame, `margin` wider on all sides, up to its
// top and `margin` beyond.
TopoDS_Shape prism(const math::Matrix& frame, const math::Extent& box, double margin) {
  const math::Point3d low = box.minimum(), high = box.maximum();
  BRepBuilderAPI_MakePolygon ring;
  for (const math::Point2d& corner : {math::Point2d(low.x - margin, low.y - margin),
                                      math::Point2d(high.x + margin, low.y - margin),
                                      math::Point2d(high.x + margin, high.y + margin),
                                      math::Point2d(low.x - margin, high.y + margin)})
    ring.Add(toOpenCascade(frame.transform(corner)));
  ring.Close();
  const BRepBuilderAPI_MakeFace face(gp_Pln(toOpenCascadeFrame(frame)), ring.Wire(), true);
  const gp_Vec height = toOpenCascade(frame.z() * (high.z + margin));
  return BRepPrimAPI_MakePrism(face.Face(), height, false, true).Shape();
}

}  // namespace

Shapes shapesOf(const FcHalfSpaceSolid& item, const FcParams& /*params*/) {
  const auto data = item.setupOcRepresentationData();
  if (!data) return {};
  return {ocHalfSpaceSolid(data->point, data->vector)};
}

Shapes FcHalfSpaceSolid::ocRepresentationForClipping(
    const measure::FcPositiveLengthMeasure& diameter, const FcParams& params) const {
  if (const auto* bounded = fcCast<FcPolygonalBoundedHalfSpace>(this))
    return bounded->ocPrismForClipping(diameter, params);
  return ocRepresentation(params);
}

TopoDS_Shape FcHalfSpaceSolid::prismOver(const math::Extent& box) const {
  const auto frame = materialFrame();
  if (!frame || isAwayFrom(box)) return {};
  const double margin = 1000 * math::Epsilon::current().length;
  return tryOpenCascadeConstruction<TopoDS_Shape>(
      [&] { return prism(*frame, box.transformExtent(frame->inverse()), margin); },
      "OpenCascade half space creation failed.",
      "OpenCascade half space creation did not fail, but the resulting shape is Null.");
}

Shapes FcPolygonalBoundedHalfSpace::ocPrismForClipping(
    const measure::FcPositiveLengthMeasure& diameter, const FcParams& params) const {
  if (!(diameter > math::Epsilon::current().length)) {
    report(*this, "Expect to have strictly positive diameter of first operand");
    return {};
  }
  const TopoDS_Shape prism =
      ocRepresentationFromBooleanCommonOfHalfSpaceWithFinitePrism(diameter, params);
  if (prism.IsNull()) return {};
  return {prism};
}

TopoDS_Shape
FcPolygonalBoundedHalfSpace::ocRepresentationFromBooleanCommonOfHalfSpaceWithFinitePrism(
    double depth, const FcParams& params) const {
  const auto data = setupOcRepresentationData();
  if (!data) return {};
  const std::vector<math::Point3d> points = polygonOnPlane(*data, params);
  if (points.empty()) return {};
  const TopoDS_Wire wire = getClosedWireFromPoints(points);
  if (wire.IsNull()) return {};
  const math::Vector3d extrusion = data->extrusion * (depth * finalSafetyFactorOnExtrusionDepth());
  return tryOpenCascadeConstruction<TopoDS_Shape>(
      [&]() -> TopoDS_Shape {
        const gp_Pln plane(toOpenCascade(data->point), toOpenCascadeDirection(data->vector));
        BRepBuilderAPI_MakeFace face(plane, wire, true);
        if (!face.IsDone()) return {};
        BRepPrimAPI_MakePrism prism(face.Face(), toOpenCascade(extrusion), false, true);
        return TopoDS::Solid(prism.Shape());
      },
      "Extrusion of polygon could not be executed or result is no solid.",
      "Extrusion of polygon did not fail, but the resulting shape is Null.");
}

}  // namespace qor::fc::resource::geometricmodel
