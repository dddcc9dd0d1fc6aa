#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Fc/Resource/GeometricConstraint/FcGridPlacement.h"
#include "Fc/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Items.h"
#include "Qor/Assert/Exception.h"
#include "Tests/Qor/Math/RandomGeometry.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometry {
namespace {

using namespace geometricconstraint;
using namespace math;
using std::numbers::pi;
using test::ExpectAsserts;

const char* const onlyOneDirection =
    "Assertion failed: by formal propositions either both, Axis and RefDirection must be given, or "
    "neither of them.";

struct DirectionCase {
  std::optional<Vector3d> axis, reference;
  Vector3d x, z;
  std::vector<test::ExpectedAssert> asserts{};
  Point3d origin = {1, 2, 3};
};

TEST(Placement, MakesAFrameOfItsDirections) {
  const double half = std::sqrt(0.5);
  const char* const parallel = "RefDirection() must not to be parallel to Axis()";
  const char* const noDirection =
      "Direction orthogonal to RefDirection() and zAxis is Null vector: this contradicts formal "
      "propositions (cross product of Axis() and RefDirection() must not be Null vector)";
  const char* const notPerpendicular = "xAxis and zAxis should be perpendicular";
  const Vector3d x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
  const DirectionCase cases[] = {
      {{}, {}, x, z},
      {z, y, y, z},
      {Vector3d(0, 0, 7), Vector3d(0, 5, 0), y, z},
      {z, Vector3d(1, 0, 1), x, z},  // the axis wins
      {Vector3d(1, 1, 0), z, z, Vector3d(half, half, 0)},
      {x, {}, y, x, {onlyOneDirection}},
      {-x, {}, y, -x, {onlyOneDirection}},
      {y, {}, x, y, {onlyOneDirection}},
      {{}, y, y, z, {onlyOneDirection}},
      {Vector3d(), x, x, z, {}, {0, 0, 0}},  // not even its place counts
      {z, Vector3d(0, 0, 2), x, z, {parallel, noDirection, notPerpendicular}},
      {z,
       Vector3d(),
       x,
       z,
       {"Expect RefDirection() not to be Null Vector.", noDirection, notPerpendicular}}};
  for (const DirectionCase& test : cases) {
    FcAxis2Placement3D placement;
    placement.setLocation(makePoint(Point3d(1, 2, 3)));
    if (test.axis) placement.setAxis(makeDirection(*test.axis));
    if (test.reference) placement.setRefDirection(makeDirection(*test.reference));
    const ExpectAsserts expected(test.asserts);
    EXPECT_LT(deviation(placement.placementGet(), Matrix(test.origin, test.x, test.z)), 1e-15);
  }
}

TEST(Placement, ReportsDirectionsOfThePlane) {
  FcAxis2Placement3D placement;
  placement.setAxis(makeDirection(Vector2d(1, 0)));
  placement.setRefDirection(makeDirection(Vector2d(0, 1)));
  const char* const planar =
      "Assertion failed: by formal propositions Axis must reference a three-dimensional direction";
  const ExpectAsserts expected({planar, planar});
  EXPECT_EQ(placement.placementGet(), Matrix({}, {0, 1, 0}, {1, 0, 0}));
}

TEST(Placement, GivesBackTheFrameThatWasSetInThePartsThatItHas) {
  const ExpectAsserts none;
  RandomGeometry random;
  const auto placement = makePlacement(Matrix({1, 2, 3}, {0, 2, 0}, {1, 0, 0}));
  const auto location = placement->Location();
  const auto axis = placement->Axis(), reference = placement->RefDirection();
  EXPECT_EQ(reference->vector(), Vector3d(0, 2, 0)) << "of the length that it was given";
  for (int i = 0; i < 1000; ++i) {
    const Matrix frame = random.frame(1e6);
    placement->setPlacement(frame);
    EXPECT_LT(deviation(placement->placementGet(), frame), 1e-14);
    EXPECT_EQ(placement->Location(), location);
    EXPECT_EQ(placement->Axis(), axis);
    EXPECT_EQ(placement->RefDirection(), reference);
    const Matrix move = random.frame(1e3);
    const auto moved = makePlacement(frame);
    moved->transform(move);
    EXPECT_LT(deviation(moved->placementGet(), frame * move), 1e-9);
  }
  placement->setPlacement(Matrix::createTranslation({4, 5, 6}));
  EXPECT_EQ(placement->Axis(), nullptr);
  EXPECT_EQ(placement->RefDirection(), nullptr);
}

TEST(Placement, MovesAllThatShareItsPoint) {
  const auto shared = makePoint(Point3d(1, 0, 0));
  FcAxis2Placement3D one, other;
  one.setLocation(shared);
  other.setLocation(shared);
  one.transform(Matrix::createTranslation({0, 0, 5}));
  EXPECT_EQ(other.placementGet().origin(), Point3d(1, 0, 5));
}

TEST(Placement, ReportsMirrorsAndParallelAxesAndStoresThem) {
  const std::string formal = "by formal propositions, ",
                    inSetter = "Assertion failed in vPlacementSet: " + formal;
  const ExpectAsserts expected(
      {"Assertion failed in Constructor FcAxis2Placement3D: " + formal +
           "placements must not allow mirroring",
       inSetter + "placements must not allow mirroring",
       inSetter + "cross product of Axis() and RefDirection() must not be Null vector"});
  FcAxis2Placement3D placement(Matrix({-1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {}));
  EXPECT_EQ(placement.RefDirection()->vector(), Vector3d(-1, 0, 0));
  placement.setPlacement(Matrix({0, 0, 1}, {0, 1, 0}, {0, 0, 1}, {}));
}

TEST(Placement2D, TurnsInThePlane) {
  FcAxis2Placement2D placement;
  placement.setLocation(makePoint(Point2d(1, 2)));
  EXPECT_EQ(placement.placementGet(), Matrix::createTranslation({1, 2, 0}));
  EXPECT_EQ(placement.transformation2dGet(), Matrix2d::createTranslation({1, 2}));
  placement.setRefDirection(makeDirection(Vector2d(0, 3)));
  EXPECT_EQ(placement.placementGet(), Matrix({1, 2, 0}, {0, 1, 0}, {0, 0, 1}));
  EXPECT_EQ(placement.transformation2dGet(), Matrix2d({1, 2}, {0, 1}));
  placement.transform2d(Matrix2d::createRotate(-pi / 2));
  EXPECT_EQ(placement.RefDirection(), nullptr);
  EXPECT_LT(placement.placementGet().origin().distance({2, -1, 0}), 1e-15);
  EXPECT_EQ(static_cast<FcCartesianPoint&>(*placement.Location()).dimension(), 2u);
  placement.transform(Matrix::createZRotate(pi / 2));
  EXPECT_LT(deviation(placement.placementGet(), Matrix({1, 2, 0}, {0, 1, 0}, {0, 0, 1})), 1e-15);
  EXPECT_EQ(placement.RefDirection()->dimension(), 3u);
}

TEST(Placement1, IsATranslationThatMoves) {
  FcAxis1Placement placement;
  const char* const noPoint = "Should have location";
  const char* const spatial = "Should have two dimension";
  const ExpectAsserts expected({noPoint, noPoint, spatial, spatial});
  EXPECT_EQ(placement.transformationGet(), Matrix());
  EXPECT_EQ(placement.transformation2dGet(), Matrix2d());
  placement.setLocation(makePoint(Point2d(1, 2)));
  EXPECT_EQ(placement.transformationGet(), Matrix::createTranslation({1, 2, 0}));
  EXPECT_EQ(placement.transformation2dGet(), Matrix2d::createTranslation({1, 2}));
  placement.transform(Matrix::createTranslation({0, 0, 3}));
  EXPECT_EQ(placement.transformation2dGet(), Matrix2d::createTranslation({1, 2}));
}

TEST(PlacementSelect, GivesTheFrameOfWhatItHolds) {
  FcAxis2Placement select;
  EXPECT_EQ(select.transformationGet(), Matrix());
  select.set(FcAxis2Placement::Types::Axis2Placement2D);  // a null reference
  EXPECT_EQ(select.transformationGet(), Matrix());
  select.setTransformation(Matrix::createTranslation({1, 2, 3}));
  EXPECT_EQ(select.type(), FcAxis2Placement::Types::Axis2Placement3D);
  EXPECT_EQ(select.transformationGet(), Matrix::createTranslation({1, 2, 3}));
}

std::shared_ptr<FcLocalPlacement> localPlacement(const Matrix& frame,
                                                 std::shared_ptr<FcObjectPlacement> base = {}) {
  auto placement = makeEntity<FcLocalPlacement>();
  placement->setRelativePlacement(makePlacement(frame));
  if (base) placement->setPlacementRelTo(std::move(base));
  return placement;
}

TEST(LocalPlacement, MultipliesItsChain) {
  RandomGeometry random;
  for (int i = 0; i < 100; ++i) {
    std::shared_ptr<FcLocalPlacement> placement;
    Matrix expected, own;
    for (int depth = 0; depth < 8; ++depth) {
      own = random.frame(100);
      placement = localPlacement(own, placement);
      expected = own * expected;
    }
    EXPECT_LT(deviation(placement->placementGet(false), expected), 1e-10);
    EXPECT_LT(deviation(placement->placementGet(true), own), 1e-14);
  }
}

TEST(LocalPlacement, StandsWhereItsBaseStandsWithoutAFrameOfItsOwn) {
  const auto base = localPlacement(Matrix::createTranslation({1, 2, 3}));
  const auto placement = test::make<FcLocalPlacement>({{"PlacementRelTo", base}});
  EXPECT_EQ(placement->placementGet(false), Matrix::createTranslation({1, 2, 3}));
  EXPECT_EQ(placement->placementGet(true), Matrix());
  EXPECT_EQ(FcLocalPlacement().placementGet(false), Matrix());
}

TEST(LocalPlacement, SurvivesAChainOfAHundredThousand) {
  std::shared_ptr<FcLocalPlacement> placement;
  for (int i = 0; i < 100000; ++i)
    placement = localPlacement(Matrix::createTranslation({1, 0, 0}), placement);
  EXPECT_EQ(placement->placementGet(false).origin(), Point3d(100000, 0, 0));
}

TEST(LocalPlacement, NamesThePlacementAtWhichItsChainTurnsBack) {
  const auto step = Matrix::createTranslation({1, 0, 0});
  const auto top = localPlacement(step), middle = localPlacement(step, top),
             bottom = localPlacement(step, middle);
  top->setPlacementRelTo(middle);
  const auto wall = test::make<shared::buildingelements::FcWall>(
      {{"Name", "South wall"}, {"ObjectPlacement", middle}});
  ASSERT_TRUE(wall->setAttributeFromString("GlobalId", "3vB2YO$MX4xv5uCqZZG05x"));
  const std::string circle =
      " leads in a circle back to the placement of IFCWALL 3vB2YO$MX4xv5uCqZZG05x (South wall)";
  const ExpectAsserts expected(
      {"PlacementRelTo of the placement" + circle,
       "PlacementRelTo of the placement of IFCWALL 3vB2YO$MX4xv5uCqZZG05x (South wall)" + circle});
  EXPECT_EQ(bottom->placementGet(false).origin(), Point3d(3, 0, 0));
  EXPECT_EQ(middle->placementGet(false).origin(), Point3d(2, 0, 0));
  top->clearPlacementRelTo();
}

TEST(LinearPlacement, StandsWhereItsCartesianPositionSays) {
  const auto linear = std::make_shared<FcLinearPlacement>();
  const auto onIt = localPlacement(Matrix::createTranslation({1, 0, 0}), linear);
  linear->setPlacementRelTo(localPlacement(Matrix::createTranslation({0, 0, 5})));
  EXPECT_EQ(linear->placementGet(false), Matrix());
  EXPECT_EQ(onIt->placementGet(false), Matrix::createTranslation({1, 0, 0}));
  linear->setCartesianPosition(makePlacement(Matrix::createTranslation({0, 3, 0})));
  EXPECT_EQ(linear->placementGet(true), Matrix::createTranslation({0, 3, 0}));
  EXPECT_EQ(linear->placementGet(false), Matrix::createTranslation({0, 3, 5}));
  EXPECT_EQ(onIt->placementGet(false), Matrix::createTranslation({1, 3, 5}));
}

TEST(GridPlacement, Throws) {
  const auto grid = std::make_shared<FcGridPlacement>();
  EXPECT_THROW(localPlacement(Matrix(), grid)->placementGet(false), qor::exception);
  EXPECT_EQ(localPlacement(Matrix(), grid)->placementGet(true), Matrix());
}

}  // namespace
}  // namespace qor::fc::resource::geometry
