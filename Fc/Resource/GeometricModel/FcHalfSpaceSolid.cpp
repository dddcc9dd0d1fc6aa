#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakeHalfSpace.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Solid.hxx>
#include <algorithm>
#include <gp_Pln.hxx>
#include <numbers>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Bounding.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
namespace {

// The box around the corners of a box, seen from a frame.
math::Extent boxIn(const math::Matrix& frame, const math::Extent& box) {
  return box.transformExtent(frame.inverse());
}

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

std::optional<math::Extent> FcHalfSpaceSolid::boundingBox(const FcParams& /*params*/) const {
  return {};
}

void FcHalfSpaceSolid::transform(const math::Matrix& matrix) {
  if (matrix.isIdentity()) return;
  if (BaseSurface()) return BaseSurface()->transform(matrix);
  report("Assertion failed in FcHalfSpaceSolid::transform: expect BaseSurface to be given",
         "qor::fc::resource::geometricmodel::FcHalfSpaceSolid::transform", __LINE__);
}

std::vector<TopoDS_Shape> FcHalfSpaceSolid::ocRepresentation(const FcParams& /*params*/) const {
  const auto data = setupOcRepresentationData();
  if (!data) return {};
  return {ocHalfSpaceSolid(data->point, data->vector)};
}

std::vector<TopoDS_Shape> FcHalfSpaceSolid::ocRepresentationForClipping(
    const measure::FcPositiveLengthMeasure& /*diameter*/, const FcParams& params) const {
  return ocRepresentation(params);
}

std::optional<FcHalfSpaceSolid::OcRepresentationData> FcHalfSpaceSolid::setupOcRepresentationData()
    const {
  const char* const function =
      "qor::fc::resource::geometricmodel::FcHalfSpaceSolid::setupOcRepresentationData";
  const auto* plane = fcCast<geometry::FcPlane>(BaseSurface().get());
  if (!plane) {
    report("Expect BaseSurface to be of type FcPlane.", function, __LINE__);
    return {};
  }
  math::Matrix frame;
  if (plane->Position()) {
    frame = plane->Position()->placementGet();
  } else {
    report("Position() of BaseSurface() is not set. Will assume standard coordinate system now.",
           function, __LINE__);
  }
  return OcRepresentationData{frame.origin(), AgreementFlag() ? frame.z() * -1 : frame.z()};
}

// That of the plane, with Z into the material.
std::optional<math::Matrix> FcHalfSpaceSolid::materialFrame() const {
  const auto* plane = fcCast<geometry::FcPlane>(BaseSurface().get());
  if (!plane || !plane->Position()) return {};
  const math::Matrix position = plane->Position()->placementGet();
  if (!AgreementFlag()) return position;
  return math::Matrix::createXRotate(std::numbers::pi) * position;
}

bool FcHalfSpaceSolid::isAwayFrom(const math::Extent& box) const {
  const auto frame = materialFrame();
  return frame && boxIn(*frame, box).maximum().z <= math::Epsilon::current().length;
}

double FcHalfSpaceSolid::distanceTo(const math::Extent& box) const {
  const auto frame = materialFrame();
  return frame ? std::max(0.0, boxIn(*frame, box).minimum().z) : 0;
}

TopoDS_Shape FcHalfSpaceSolid::prismOver(const math::Extent& box) const {
  const auto frame = materialFrame();
  if (!frame || isAwayFrom(box)) return {};
  const double margin = 1000 * math::Epsilon::current().length;
  return tryOpenCascadeConstruction<TopoDS_Shape>(
      [&] { return prism(*frame, boxIn(*frame, box), margin); },
      "OpenCascade half space creation failed.",
      "OpenCascade half space creation did not fail, but the resulting shape is Null.");
}

}  // namespace qor::fc::resource::geometricmodel
