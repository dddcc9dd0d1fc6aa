#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <set>

#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcFixedReferenceSweptAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolidPolygonal.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Tests/Fc/Geometry/Items.h"
#include "Tests/Fc/Geometry/ProfileCases.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using qor::test::makeProfile;
using qor::test::ProfileCase;
using namespace geometry;
using namespace math;
using profile::FcProfileDef;
using qor::test::DrawRecorder;
using qor::test::ExpectAsserts;
using qor::test::isClosedSolidOfVolume;
using qor::test::make;
using qor::test::SolidMesh;
using std::numbers::pi;
using Points3d = std::vector<Point3d>;

const FcParams kParams{qor::test::sixtyFour()};

/// All that an item draws, in the frame around it; with the box of it.
struct Drawing {
  explicit Drawing(const geometry::FcRepresentationItem& item) : recorder(qor::test::sixtyFour()) {
    recorder.draw(item);
    EXPECT_TRUE(recorder.transformationGet().isIdentity()) << "the frame isn't given back";
    for (const auto& set : recorder.polygonalSets) {
      mesh.add(set.what, set.frame);
      for (const Point3d& point : set.what.coordinates) box.include(point * set.frame);
    }
  }
  DrawRecorder recorder;
  SolidMesh mesh;
  Extent box;
};

bool isInside(const Extent& inner, const Extent& outer, double by = 1e-9) {
  const Vector3d margin(by, by, by);
  return Extent(outer.minimum() - margin, outer.maximum() + margin).uniteWith(inner) ==
         Extent(outer.minimum() - margin, outer.maximum() + margin);
}

std::shared_ptr<geometry::FcAxis2Placement3D> slantedPosition() {
  return geometry::makePlacement(Matrix::createXRotate(0.5) * Matrix::createZRotate(2) *
                                 Matrix::createTranslation({10, 20, 30}));
}

std::shared_ptr<FcExtrudedAreaSolid> extrusion(const std::shared_ptr<FcProfileDef>& area,
                                               const Vector3d& direction, double depth) {
  return make<FcExtrudedAreaSolid>({{"SweptArea", area},
                                    {"ExtrudedDirection", geometry::makeDirection(direction)},
                                    {"Depth", depth}});
}

std::shared_ptr<geometry::FcAxis1Placement> axis(const Point3d& location,
                                                 const Vector3d& direction) {
  return make<geometry::FcAxis1Placement>(
      {{"Location", geometry::makePoint(location)}, {"Axis", geometry::makeDirection(direction)}});
}

/// 1 by 2 metres around the origin.
std::shared_ptr<FcProfileDef> rectangle() {
  return makeProfile("IfcRectangleProfileDef", "XDim 1, YDim 2");
}

/// The box of the item contains all that it draws.
template <class Item>
void expectInItsBox(const Item& item, const Drawing& drawing, double margin = 1e-9) {
  const auto box = item.boundingBox(kParams);
  EXPECT_TRUE(box && isInside(drawing.box, *box, margin));
}

TEST(ExtrudedAreaSolid, OfEveryProfileIsClosedAndOfAreaTimesHeightWithinItsBox) {
  const ExpectAsserts none;
  const std::set<std::string> boxed{"IfcRectangleProfileDef", "IfcIShapeProfileDef",
                                    "IfcZShapeProfileDef"};
  const Vector3d directions[] = {{0, 0, 1}, {0, 0, -1}, {0, 0, 5}, {0.4, -0.2, 1}, {0.4, -0.2, -1}};
  for (const ProfileCase& shape : qor::test::profileCases())
    for (const Vector3d& direction : directions) {
      const auto solid = extrusion(makeProfile(shape.ifcName, shape.dimensions), direction, 3);
      solid->setPosition(slantedPosition());
      const Drawing drawing(*solid);
      const double height = 3 * std::abs(direction.normalized().z);
      EXPECT_TRUE(isClosedSolidOfVolume(drawing.mesh,
                                        shape.area(qor::test::piOfSixtyFour()) * height, 1e-9))
          << shape.ifcName << " along " << direction.x << " " << direction.z;
      if (boxed.count(shape.ifcName)) expectInItsBox(*solid, drawing);
    }
}

TEST(ExtrudedAreaSolid, StraightUpOrDownIsTheBlockOrCylinderThatItIs) {
  for (const double up : {1.0, -1.0}) {
    const auto box =
        extrusion(makeProfile("IfcRectangleProfileDef", "XDim 2, YDim 1"), {0, 0, up}, 3);
    EXPECT_FALSE(box->asEquivalentRightCircularCylinder());
    const auto block = box->asFcBlock();
    ASSERT_TRUE(block);
    EXPECT_EQ(block->ZLength(), 3.0);
    EXPECT_TRUE(block->Position()->placementGet().origin().isNear({-1, -0.5, up > 0 ? 0.0 : -3.0}));
    EXPECT_EQ(Drawing(*box).recorder.items.size(), 1u);

    const auto rod = extrusion(makeProfile("IfcCircleProfileDef", "Radius 2"), {0, 0, up}, 3);
    const auto cylinder = rod->asEquivalentRightCircularCylinder();
    ASSERT_TRUE(cylinder);
    EXPECT_TRUE(cylinder->Position()->placementGet().z().isNear({0, 0, up}));
    EXPECT_EQ(Drawing(*rod).recorder.items.size(), 1u);
  }
  const auto slanted =
      extrusion(makeProfile("IfcRectangleProfileDef", "XDim 2, YDim 1"), {0.1, 0, 1}, 3);
  EXPECT_FALSE(slanted->asFcBlock());
  const Drawing drawing(*slanted);
  ASSERT_EQ(drawing.recorder.polygonalSets.size(), 1u);
  EXPECT_EQ(drawing.recorder.polygonalSets[0].what.faces.size(), 6u);
  EXPECT_EQ(drawing.recorder.polygonalSets[0].what.coordinates.size(), 8u);
}

TEST(ExtrudedAreaSolid, InItsOwnPlaneIsDrawnWithAReport) {
  const auto area = makeProfile("IfcEllipseProfileDef", "SemiAxis1 2, SemiAxis2 1");
  const ExpectAsserts expected(
      {"By formal proposition, the extruded direction must not be perpendicular to the local "
       "Z-Axis"});
  EXPECT_FALSE(Drawing(*extrusion(area, {1, 0, 0}, 1)).recorder.empty());
}

/// Drawing the moved solid gives what moving the drawn one does.
TEST(SweptSolids, AreMovedAndScaledAsWhatTheyDraw) {
  const ExpectAsserts none;
  const auto turned = make<FcRevolvedAreaSolid>(
      {{"SweptArea", rectangle()}, {"Axis", axis({3, 0, 0}, {0, 1, 0})}, {"Angle", 2}});
  const auto pipe = make<FcSweptDiskSolid>(
      {{"Directrix", polyline(Points3d{{0, 0, 0}, {5, 0, 0}, {5, 5, 3}})}, {"Radius", 0.2}});
  const Matrix move = Matrix::createYRotate(0.7) * Matrix::createTranslation({1, 2, 3});
  const Matrix grow = Matrix::createScale(2, 2, 2) * move;
  const auto slanted = [] { return extrusion(rectangle(), {0.5, 0, 1}, 3); };
  const std::pair<std::shared_ptr<geometry::FcRepresentationItem>, Matrix> cases[] = {
      {slanted(), move}, {slanted(), grow}, {turned, move}, {turned, grow}, {pipe, move}};
  for (const auto& [item, matrix] : cases) {
    SCOPED_TRACE(item->ifcName());
    const Drawing before(*item);
    item->transform(matrix);
    const Drawing after(*item);
    ASSERT_EQ(before.recorder.polygonalSets.size(), 1u);
    ASSERT_EQ(after.recorder.polygonalSets.size(), 1u);
    const auto& from = before.recorder.polygonalSets[0];
    const auto& to = after.recorder.polygonalSets[0];
    ASSERT_EQ(from.what.coordinates.size(), to.what.coordinates.size());
    if (item == pipe) continue;  // its section has no direction of its own to keep
    for (std::size_t i = 0; i < from.what.coordinates.size(); ++i)
      EXPECT_LT((from.what.coordinates[i] * from.frame * matrix)
                    .distance(to.what.coordinates[i] * to.frame),
                1e-9);
  }
  EXPECT_NEAR(turned->SweptArea()->planarBox(kParams)->size().y, 4, 1e-12);
  EXPECT_TRUE(Drawing(*pipe).box.minimum().x > 0.5);
}

TEST(RevolvedAreaSolid, RefusesToBeMirroredOrStretched) {
  FcRevolvedAreaSolid solid;
  const ExpectAsserts expected({"Must fixed implementation if mirror should be allowed",
                                "Non uniform scaling is not implemented",
                                "FcRevolvedAreaSolid must have SweptArea before scaling"});
  solid.transform(Matrix::createScale(-1, 1, 1));
  solid.transform(Matrix::createScale(1, 2, 1));
  solid.transform(Matrix::createScale(2, 2, 2));
  EXPECT_FALSE(solid.Position());
}

TEST(ExtrudedAreaSolidTapered, PairsTheArcsOfBothProfiles) {
  const ExpectAsserts none;
  const auto solid = make<FcExtrudedAreaSolidTapered>(
      {{"ExtrudedDirection", geometry::makeDirection(Vector3d(0, 0, -1))},
       {"Depth", 3},
       {"Position", slantedPosition()},
       {"SweptArea", makeProfile("IfcCircleProfileDef", "Radius 2")},
       {"EndSweptArea", makeProfile("IfcCircleProfileDef", "Radius 0.01")}});
  // A target whose circles have corners by their size, so that the smaller one alone would have
  // few.
  DrawRecorder recorder(math::CurveDiscretization(0.01, 4, 400));
  recorder.draw(*solid);
  ASSERT_EQ(recorder.polygonalSets.size(), 2u);
  SolidMesh mesh;
  for (const auto& set : recorder.polygonalSets) mesh.add(set.what, set.frame);
  EXPECT_TRUE(isClosedSolidOfVolume(mesh, pi * (4 + 0.0001 + 0.02), 0.01));
  EXPECT_FALSE(recorder.polygonalSets[0].what.hardEdges);
  EXPECT_TRUE(recorder.polygonalSets[1].what.hardEdges);
}

TEST(TaperedSolids, TellProfilesThatDoNotPair) {
  const auto tube =
      makeProfile("IfcRectangleHollowProfileDef", "XDim 1, YDim 1, WallThickness 0.1");
  const auto angle = makeProfile("IfcLShapeProfileDef", "Depth 2, Thickness 0.2");
  const auto pushed = make<FcExtrudedAreaSolidTapered>(
      {{"ExtrudedDirection", geometry::makeDirection(Vector3d(0, 0, 1))},
       {"Depth", 3},
       {"SweptArea", rectangle()}});
  const auto turned = make<FcRevolvedAreaSolidTapered>(
      {{"Axis", axis({5, 0, 0}, {0, 1, 0})}, {"Angle", 1}, {"SweptArea", rectangle()}});
  const char* polygons = "Number of polygons in top and bottom profile should be equal";
  const char* points = "Number of points in top and bottom profile should be equal";
  const ExpectAsserts expected({"End swept area should exist", "End swept area should exist",
                                polygons, points, polygons, points});
  for (const auto& end : {std::shared_ptr<FcProfileDef>(), tube, angle}) {
    pushed->setEndSweptArea(end);
    turned->setEndSweptArea(end);
    EXPECT_TRUE(Drawing(*pushed).recorder.empty());
    EXPECT_TRUE(Drawing(*turned).recorder.empty());
  }
}

TEST(RevolvedAreaSolid, StandsInItsPositionWithinItsBox) {
  for (const double angle : {0.4, pi, 2 * pi}) {
    const auto solid = make<FcRevolvedAreaSolid>({{"Position", slantedPosition()},
                                                  {"SweptArea", rectangle()},
                                                  {"Axis", axis({3, 0, 0}, {0, 2, 0})},
                                                  {"Angle", angle}});
    const Drawing drawing(*solid);
    EXPECT_TRUE(isClosedSolidOfVolume(drawing.mesh, 2 * 3 * angle, 0.002));
    expectInItsBox(*solid, drawing);
  }
}

TEST(RevolvedAreaSolidTapered, StandsFullTurnsToo) {
  FcRevolvedAreaSolidTapered solid;
  solid.setAxis(axis({3, 0, 0}, {0, 1, 0}));
  solid.setSweptArea(rectangle());
  solid.setEndSweptArea(makeProfile("IfcRectangleProfileDef", "XDim 0.5, YDim 1"));
  {
    const ExpectAsserts expected({"Angle should exist"});
    EXPECT_TRUE(Drawing(solid).recorder.empty());
  }
  solid.setAngle(pi);
  const Drawing drawing(solid);
  EXPECT_TRUE(isClosedSolidOfVolume(drawing.mesh, 2 * 7.0 / 12 * 3 * pi, 0.01));
  expectInItsBox(solid, drawing);
  solid.setAngle(2 * pi);
  EXPECT_EQ(Drawing(solid).recorder.polygonalSets.at(0).what.faces.size(), 2 + 4 * 64u);
}

TEST(FixedReferenceSweptAreaSolid, FollowsItsCurveWithinItsBox) {
  const ExpectAsserts none;
  for (const ProfileCase& shape : qor::test::profileCases()) {
    if (std::string(shape.ifcName).find("IShape") == std::string::npos) continue;
    FcFixedReferenceSweptAreaSolid solid;
    solid.setPosition(slantedPosition());
    solid.setSweptArea(makeProfile(shape.ifcName, shape.dimensions));
    solid.setFixedReference(geometry::makeDirection(Vector3d(0, 0, 4)));
    solid.setDirectrix(polyline(Points3d{{0, 0, 0}, {20, 0, 0}, {30, 10, 0}, {30, 30, 10}}));
    const Drawing drawing(solid);
    EXPECT_EQ(drawing.mesh.problem(), "");
    const double length = 20 + std::sqrt(200) + std::sqrt(500);
    EXPECT_NEAR(drawing.mesh.volume() / (shape.area(pi) * length), 1, 0.02);
    expectInItsBox(solid, drawing);
  }
}

TEST(FixedReferenceSweptAreaSolid, TellsWhatIsMissingAndIgnoresTrims) {
  FcFixedReferenceSweptAreaSolid solid;
  const ExpectAsserts expected({"Directrix should exist", "Swept area should exist",
                                "Start param not implemented", "End param not implemented"});
  EXPECT_TRUE(Drawing(solid).recorder.empty());
  solid.setDirectrix(polyline(Points3d{{0, 0, 0}, {0, 0, 5}}));
  EXPECT_TRUE(Drawing(solid).recorder.empty());
  solid.setSweptArea(rectangle());
  solid.setStartParam(measure::FcParameterValue(0.0));
  solid.setEndParam(measure::FcParameterValue(0.5));
  EXPECT_TRUE(isClosedSolidOfVolume(Drawing(solid).mesh, 10, 1e-9));
}

TEST(SweptDiskSolid, KeepsItsVolumeRoundBendsAndRings) {
  const ExpectAsserts none;
  const double section = qor::test::piOfSixtyFour() * (0.04 - 0.01);
  const std::pair<std::shared_ptr<geometry::FcCurve>, double> curvesAndLengths[] = {
      {polyline(Points3d{{0, 0, 0}, {3, 0, 0}, {3, 3, 0}}), 6},
      {polyline(Points3d{{0, 0, 0}, {0, 0, 3}}), 3},
      {polyline(Points3d{{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0}}, true), 12},
      {circle(5), 5 * 64 * 2 * std::sin(pi / 64)},
  };
  for (const auto& [directrix, length] : curvesAndLengths) {
    FcSweptDiskSolid pipe;
    pipe.setDirectrix(directrix);
    pipe.setRadius(0.2);
    pipe.setInnerRadius(measure::FcPositiveLengthMeasure(0.1));
    const Drawing drawing(pipe);
    EXPECT_TRUE(isClosedSolidOfVolume(drawing.mesh, section * length, 1e-6));
    // A mitre at a corner of the curve's polygon reaches a little beyond the radius.
    expectInItsBox(pipe, drawing, 0.2 * (1 / std::cos(pi / 64) - 1) + 1e-9);
  }
}

TEST(SweptDiskSolidPolygonal, RoundsItsCorners) {
  const ExpectAsserts none;
  FcSweptDiskSolidPolygonal bar;
  bar.setDirectrix(polyline(Points3d{{0, 0, 0}, {2, 0, 0}, {4, 0, 0}, {4, 3, 0}}));
  bar.setRadius(0.1);
  EXPECT_TRUE(
      isClosedSolidOfVolume(Drawing(bar).mesh, qor::test::piOfSixtyFour() * 0.01 * 7, 1e-6));
  bar.setFilletRadius(measure::FcNonNegativeLengthMeasure(1.0));
  EXPECT_EQ(bar.getDirectrixAsIndexedPolyCurve(kParams)->Segments()->size(), 3u);
  EXPECT_TRUE(isClosedSolidOfVolume(Drawing(bar).mesh,
                                    qor::test::piOfSixtyFour() * 0.01 * (3 + 2 + pi / 2), 1e-3));
}

TEST(SweptSolids, WithNumbersThatAreNoneDrawNothingOfThem) {
  const bool enabled = Assert::isEnabled();
  Assert::setEnabled(false);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const std::shared_ptr<geometry::FcRepresentationItem> items[] = {
      extrusion(rectangle(), {nan, 0, 1}, 3),
      make<FcRevolvedAreaSolid>(
          {{"SweptArea", rectangle()}, {"Axis", axis({nan, 0, 0}, {0, 1, 0})}, {"Angle", 1}})};
  for (const auto& item : items)
    for (const auto& set : Drawing(*item).recorder.polygonalSets)
      for (const Point3d& point : set.what.coordinates)
        EXPECT_TRUE(std::isfinite(point.x + point.y + point.z)) << item->ifcName();
  Assert::setEnabled(enabled);
}

TEST(SweptSolids, FollowAPathOfHundredsOfThousandsOfPoints) {
  std::vector<Point3d> path;
  for (int i = 0; i < 200000; ++i) path.emplace_back(i, i % 2, 0);
  FcFixedReferenceSweptAreaSolid solid;
  solid.setSweptArea(
      makeProfile("IfcTrapeziumProfileDef", "BottomXDim 0.2, TopXDim 0.1, YDim 0.1, TopXOffset 0"));
  solid.setFixedReference(geometry::makeDirection(Vector3d(0, 0, 1)));
  solid.setDirectrix(polyline(path));
  const auto sets = solid.generateFaceSet(kParams);
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_EQ(sets[0].coordinates.size(), 4 * path.size());
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
