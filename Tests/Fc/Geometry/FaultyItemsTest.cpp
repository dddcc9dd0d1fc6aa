#include <gtest/gtest.h>

#include <cmath>

#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"
#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Tests/Fc/Geometry/Items.h"
#include "Tests/Fc/Geometry/ProfileCases.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using namespace geometry;
using math::Point3d;
using math::Vector3d;
using test::make;
using test::makeProfile;

std::shared_ptr<FcAxis1Placement> axisOf(const Point3d& location, const Vector3d& direction) {
  return make<FcAxis1Placement>(
      {{"Location", makePoint(location)}, {"Axis", makeDirection(direction)}});
}

TEST(FaultyItems, DrawNothingAndHaveNoBoxAndTellBothTimesWhatIsMissingOrWrong) {
  const double none = NAN;
  const std::string cuboid =
      "Assertion failed in FcBlock::ValidXYZLengths: XLength must be strictly positive";
  const auto positive = [](const char* what) {
    return std::string("By definition of IfcPositiveLengthMeasure, the ") + what +
           " must be strictly positive";
  };
  const std::string noDepth = "Depth should be a positive value",
                    noArea = "Swept area should exist",
                    noAngle = "Angle should be between 0 and 2pi (or 360 deg)",
                    inner = "FcSweptDiskSolid InnerRadius should be less than Radius";
  const auto area = makeProfile("IfcRectangleProfileDef", "XDim 1, YDim 2");
  const auto angle = makeProfile("IfcLShapeProfileDef", "Depth 2, Thickness 0.2");
  const auto axis = axisOf({3, 0, 0}, {0, 1, 0});
  const auto bare = make<FcAxis1Placement>({{"Location", makePoint(Point3d(3, 0, 0))}});
  const auto path = polyline(std::vector<Point3d>{{0, 0, 0}, {0, 0, 3}});
  using Block = FcBlock;
  using Cone = FcRightCircularCone;
  using Cylinder = FcRightCircularCylinder;
  using Extruded = FcExtrudedAreaSolid;
  using Revolved = FcRevolvedAreaSolid;
  using Disk = FcSweptDiskSolid;
  const std::pair<std::shared_ptr<FcRepresentationItem>, std::string> cases[] = {
      {make<Block>({{"XLength", 0}, {"YLength", 1}, {"ZLength", 1}}), cuboid},
      {make<Block>({{"XLength", -1}, {"YLength", 1}, {"ZLength", 1}}), cuboid},
      {make<Block>({{"XLength", none}, {"YLength", 1}, {"ZLength", 1}}), cuboid},
      {make<FcRectangularPyramid>({{"XLength", 1}, {"YLength", 1}, {"Height", 1e-7}}),
       "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: Height must be strictly "
       "positive"},
      {make<Cone>({{"BottomRadius", 1}, {"Height", 0}}), positive("height")},
      {make<Cone>({{"BottomRadius", -1}, {"Height", 1}}), positive("bottom radius")},
      {make<Cylinder>({{"Radius", 1}, {"Height", -1}}), positive("height")},
      {make<Cylinder>({{"Radius", 0}, {"Height", 1}}), positive("radius")},
      {make<Cylinder>({{"Radius", none}, {"Height", 1}}), positive("radius")},
      {make<Extruded>(), noDepth},
      {make<Extruded>({{"Depth", none}}), noDepth},
      {make<Extruded>({{"Depth", 1}}), noArea},
      {make<Extruded>({{"Depth", 1}, {"SweptArea", angle}}), "Extrude direction should exist"},
      {make<Revolved>({{"Angle", 7}}), "Axis should exist"},
      {make<Revolved>({{"Angle", 7}, {"Axis", axisOf({0, 0, 1}, {0, 0, 1})}}),
       "Axis location must have a Z value of 0"},
      {make<Revolved>({{"Angle", 7}, {"Axis", axisOf({3, 0, 0}, {0, 0, 1})}}),
       "Axis direction must have a Z value of 0"},
      {make<Revolved>({{"Angle", 7}, {"Axis", bare}}), "Axis direction must exist"},
      {make<Revolved>({{"Angle", 7}, {"Axis", axis}}), noArea},
      {make<Revolved>({{"Angle", 7}, {"Axis", axis}, {"SweptArea", area}}), noAngle},
      {make<Revolved>({{"Angle", none}, {"Axis", axis}, {"SweptArea", area}}), noAngle},
      {make<Disk>(), "FcSweptDiskSolid need Directrix"},
      {make<Disk>({{"Directrix", path}}), "FcSweptDiskSolid should have positive Radius"},
      {make<Disk>({{"Directrix", path}, {"Radius", 0.5}, {"InnerRadius", -0.1}}),
       "FcSweptDiskSolid should have positive InnerRadius or no inner radius at all"},
      {make<Disk>({{"Directrix", path}, {"Radius", 0.5}, {"InnerRadius", 0.5}}), inner},
  };
  for (const auto& [item, message] : cases) {
    SCOPED_TRACE(item->ifcName());
    const test::ExpectAsserts expected({message, message});
    test::DrawRecorder target;
    target.draw(*item);
    EXPECT_TRUE(target.empty());
    EXPECT_FALSE(item->boundingBox(params));
  }
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
