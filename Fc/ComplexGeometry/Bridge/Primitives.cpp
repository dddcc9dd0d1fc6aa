// Blocks, pyramids, cones, cylinders and spheres for the solid modeller.

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <TopoDS_Shape.hxx>
#include <functional>
#include <string>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcBoundingBox.h"
#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/GeometricModel/FcSphere.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"

namespace qor::fc::resource::geometricmodel {
namespace {

// The one shape of a primitive, moved by its position. `operation` begins both messages.
std::vector<TopoDS_Shape> primitive(const FcCsgPrimitive3D& item, const std::string& operation,
                                    const std::string& failure,
                                    const std::function<TopoDS_Shape()>& make) {
  TopoDS_Shape shape = tryOpenCascadeConstruction<TopoDS_Shape>(
      make, operation + failure, operation + " did not fail, but the resulting shape is Null.");
  if (item.Position()) transformOpenCascadeShape(shape, item.Position()->placementGet());
  return {shape};
}

constexpr const char* kBox = "OpenCascade box creation";
constexpr const char* kWedge = "OpenCascade wedge creation";
constexpr const char* kRound = "OpenCascade extrusion operation";
constexpr const char* kFailed = " failed.";
constexpr const char* kFailedOrNoSolid = " failed or result is no solid.";

}  // namespace

std::vector<TopoDS_Shape> FcBlock::ocRepresentation(const FcParams& /*params*/) const {
  if (!ValidXYZLengths()) return {};
  return primitive(*this, kBox, kFailed,
                   [this] { return BRepPrimAPI_MakeBox(XLength(), YLength(), ZLength()).Solid(); });
}

std::vector<TopoDS_Shape> FcBoundingBox::ocRepresentation(const FcParams& params) const {
  FcBlock block;
  block.setXLength(XDim());
  block.setYLength(YDim());
  block.setZLength(ZDim());
  std::vector<TopoDS_Shape> shapes = block.ocRepresentation(params);
  if (Corner()) {
    const math::Point3d corner = Corner()->point();
    for (TopoDS_Shape& shape : shapes)
      transformOpenCascadeShape(shape,
                                math::Matrix::createTranslation({corner.x, corner.y, corner.z}));
  }
  return shapes;
}

std::vector<TopoDS_Shape> FcRectangularPyramid::ocRepresentation(const FcParams& /*params*/) const {
  if (!ValidXYLengthsHeight()) return {};
  return primitive(*this, kWedge, kFailed, [this] {
    // The wedge rises along its Y axis: it is built lying, and its frame turned upright.
    const double x = XLength(), y = YLength();
    const gp_Ax2 upright(gp_Pnt(0, y, 0), gp_Dir(0, -1, 0), gp_Dir(1, 0, 0));
    return BRepPrimAPI_MakeWedge(upright, x, Height(), y, x / 2, y / 2, x / 2, y / 2).Solid();
  });
}

std::vector<TopoDS_Shape> FcRightCircularCone::ocRepresentation(const FcParams& /*params*/) const {
  return primitive(*this, kRound, kFailedOrNoSolid,
                   [this] { return BRepPrimAPI_MakeCone(BottomRadius(), 0, Height()).Shape(); });
}

std::vector<TopoDS_Shape> FcRightCircularCylinder::ocRepresentation(
    const FcParams& /*params*/) const {
  return primitive(*this, kRound, kFailedOrNoSolid,
                   [this] { return BRepPrimAPI_MakeCylinder(Radius(), Height()).Shape(); });
}

std::vector<TopoDS_Shape> FcSphere::ocRepresentation(const FcParams& /*params*/) const {
  return primitive(*this, kBox, kFailed,
                   [this] { return BRepPrimAPI_MakeSphere(gp_Pnt(), Radius()).Solid(); });
}

}  // namespace qor::fc::resource::geometricmodel
