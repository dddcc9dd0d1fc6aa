// Blocks, pyramids, cones, cylinders and spheres for the solid modeller.

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <TopoDS_Shape.hxx>
#include <functional>
#include <string>

#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
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
Shapes primitive(const FcCsgPrimitive3D& item, const std::string& operation,
                 const std::string& failure, const std::function<TopoDS_Shape()>& make) {
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

Shapes shapesOf(const FcBlock& item, const FcParams& /*params*/) {
  if (!item.ValidXYZLengths()) return {};
  return primitive(item, kBox, kFailed, [&] {
    return BRepPrimAPI_MakeBox(item.XLength(), item.YLength(), item.ZLength()).Solid();
  });
}

Shapes shapesOf(const FcBoundingBox& item, const FcParams& params) {
  FcBlock block;
  block.setXLength(item.XDim());
  block.setYLength(item.YDim());
  block.setZLength(item.ZDim());
  Shapes shapes = shapesOf(block, params);
  if (item.Corner()) {
    const math::Point3d corner = item.Corner()->point();
    for (TopoDS_Shape& shape : shapes)
      transformOpenCascadeShape(shape,
                                math::Matrix::createTranslation({corner.x, corner.y, corner.z}));
  }
  return shapes;
}

Shapes shapesOf(const FcRectangularPyramid& item, const FcParams& /*params*/) {
  if (!item.ValidXYLengthsHeight()) return {};
  return primitive(item, kWedge, kFailed, [&] {
    // The wedge rises along its Y axis: it is built lying, and its frame turned upright.
    const double x = item.XLength(), y = item.YLength();
    const gp_Ax2 upright(gp_Pnt(0, y, 0), gp_Dir(0, -1, 0), gp_Dir(1, 0, 0));
    return BRepPrimAPI_MakeWedge(upright, x, item.Height(), y, x / 2, y / 2, x / 2, y / 2).Solid();
  });
}

Shapes shapesOf(const FcRightCircularCone& item, const FcParams& /*params*/) {
  return primitive(item, kRound, kFailedOrNoSolid, [&] {
    return BRepPrimAPI_MakeCone(item.BottomRadius(), 0, item.Height()).Shape();
  });
}

Shapes shapesOf(const FcRightCircularCylinder& item, const FcParams& /*params*/) {
  return primitive(item, kRound, kFailedOrNoSolid,
                   [&] { return BRepPrimAPI_MakeCylinder(item.Radius(), item.Height()).Shape(); });
}

Shapes shapesOf(const FcSphere& item, const FcParams& /*params*/) {
  return primitive(item, kBox, kFailed,
                   [&] { return BRepPrimAPI_MakeSphere(gp_Pnt(), item.Radius()).Solid(); });
}

}  // namespace qor::fc::resource::geometricmodel
