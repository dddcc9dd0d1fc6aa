#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <cmath>
#include <gp_Pln.hxx>

#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/NotImplemented.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"
#include "Qor/Math/Plane.h"

namespace qor::fc::resource::geometricmodel {
namespace {

void reportPrism(const char* message, int line) {
  report(message,
         "qor::fc::resource::geometricmodel::FcPolygonalBoundedHalfSpace::"
         "ocRepresentationFromBooleanCommonOfHalfSpaceWithFinitePrism",
         line);
}

}  // namespace

void FcPolygonalBoundedHalfSpace::transform(const math::Matrix& matrix) {
  if (!BaseSurface() || !PolygonalBoundary()) {
    report(
        "Assertion failed in FcBoxedHalfSpace::transform: expect both, BaseSurface and "
        "PolygonalBoundary to be given",
        "qor::fc::resource::geometricmodel::FcPolygonalBoundedHalfSpace::transform", __LINE__);
    return;
  }
  BaseSurface()->transform(matrix);
  math::Matrix frame = validPosition() * matrix;
  if (matrix.isMirror()) {
    const math::Matrix mirror = math::Matrix::createScale(-1, 1, 1);
    frame = mirror * frame;
    PolygonalBoundary()->transform(mirror);
  }
  setPosition(geometry::makePlacement(frame));
}

std::vector<TopoDS_Shape> FcPolygonalBoundedHalfSpace::ocRepresentation(
    const FcParams& /*params*/) const {
  assertNotImplemented(
      "ocRepresentation(const qor::fc::FcParams&) not implemented for class: ", *this,
      "resource::geometricmodel::FcPolygonalBoundedHalfSpace::ocRepresentation");
  return {};
}

std::vector<TopoDS_Shape> FcPolygonalBoundedHalfSpace::ocRepresentationForClipping(
    const measure::FcPositiveLengthMeasure& diameter, const FcParams& params) const {
  if (!(diameter > math::Epsilon::current().length)) {
    report("Expect to have strictly positive diameter of first operand",
           "qor::fc::resource::geometricmodel::FcPolygonalBoundedHalfSpace::"
           "ocRepresentationForClipping",
           __LINE__);
    return {};
  }
  const TopoDS_Shape prism =
      ocRepresentationFromBooleanCommonOfHalfSpaceWithFinitePrism(diameter, params);
  if (prism.IsNull()) return {};
  return {prism};
}

math::Matrix FcPolygonalBoundedHalfSpace::validPosition() const {
  if (Position()) return Position()->placementGet();
  report("Position() of polygonal boundary is not set. Will assume standard coordinate system now.",
         "qor::fc::resource::geometricmodel::FcPolygonalBoundedHalfSpace::validPosition", __LINE__);
  return {};
}

std::optional<FcPolygonalBoundedHalfSpace::OcRepresentationData>
FcPolygonalBoundedHalfSpace::setupOcRepresentationData() const {
  const auto halfSpace = FcHalfSpaceSolid::setupOcRepresentationData();
  if (!halfSpace) return {};
  const math::Matrix boundary = validPosition();
  math::Vector3d extrusion = boundary.z();
  const double intoMaterial = extrusion.dot(halfSpace->vector);
  const double tolerance = math::Epsilon::current().general;
  if (std::abs(intoMaterial) <= tolerance) {
    reportPrism("Polygons extrusion direction can't be parallel to the half space surface.",
                __LINE__);
    return {};
  }
  if (intoMaterial < 0) extrusion = extrusion * -1;
  return OcRepresentationData{extrusion, boundary, halfSpace->point, halfSpace->vector};
}

// The polygon moved along the prism onto the plane. Empty, with an assert, without a polygon.
std::vector<math::Point3d> FcPolygonalBoundedHalfSpace::polygonOnPlane(
    const OcRepresentationData& data, const FcParams& params) const {
  if (!PolygonalBoundary()) {
    reportPrism("Expect PolygonalBoundary() to be set.", __LINE__);
    return {};
  }
  const auto polygon = PolygonalBoundary()->closedCurve2dGet(params);
  if (!polygon) return {};
  std::vector<math::Point3d> points = data.boundary.transform(*polygon);
  const math::_3d::Plane plane(data.point, data.vector);
  for (math::Point3d& point : points) {
    if (const auto projected = plane.projectAlongVectorEitherDirection(point, data.extrusion))
      point = *projected;
  }
  return points;
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
