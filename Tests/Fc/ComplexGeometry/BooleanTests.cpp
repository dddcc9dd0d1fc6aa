#include <gtest/gtest.h>

#include <BRepPrimAPI_MakeBox.hxx>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>

#include "Fc/ComplexGeometry/Bridge/BooleanOperations.h"
#include "Fc/ComplexGeometry/Bridge/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/FcThreadedComplexGeometryProcessor.h"
#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Tests/Fc/ComplexGeometry/Items.h"
#include "Tests/Fc/ComplexGeometry/ShapeMeasures.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using test::boolean;
using test::boxItem;
using test::difference;
using test::ExpectAsserts;
using test::ExpectedAssert;
using test::halfSpace;
using test::isClosedSolidOfVolume;
using test::params;
using test::turnedWall;
using test::volumeOf;

const char* const kToolIsLeftOut =
    "OpenCascade boolean 'cut' operation failed. The body stays uncut by this tool.";
const auto kNoItem = std::shared_ptr<FcPolygonalFaceSet>();

std::shared_ptr<FcPolygonalBoundedHalfSpace> boundedHalfSpace(const math::Point3d& point,
                                                              const math::Vector3d& normal,
                                                              double size) {
  const auto boundary = test::make<geometry::FcPolyline>();
  boundary->setPoints(std::vector<math::Point2d>{{-1, -1}, {size, -1}, {size, size}, {-1, size}},
                      true);
  return test::make<FcPolygonalBoundedHalfSpace>(
      {{"BaseSurface", halfSpace(point, normal)->BaseSurface()},
       {"Position", geometry::makePlacement(math::Matrix())},
       {"PolygonalBoundary", boundary}});
}

TEST(BooleanResult, HasTheVolumeOfItsOperation) {
  const ExpectAsserts none;
  const auto a = boxItem({0, 0, 0}, {2, 2, 2}), b = boxItem({1, 1, 1}, {3, 3, 3});
  const struct {
    FcBooleanOperator::Enum operation;
    double volume;
  } cases[] = {{FcBooleanOperator::DIFFERENCE, 7},
               {FcBooleanOperator::INTERSECTION, 1},
               {FcBooleanOperator::UNION, 15}};
  for (const auto& [operation, volume] : cases) {
    const auto shapes = boolean(operation, a, b)->ocRepresentation(params());
    ASSERT_EQ(shapes.size(), 1u);
    EXPECT_NEAR(volumeOf(shapes), volume, 1e-9);
    EXPECT_TRUE(test::isValid(shapes[0]));
  }
}

TEST(BooleanResult, EvaluatesAChainAsOneBodyCutByAllTools) {
  const ExpectAsserts none;
  auto chain = difference(boxItem({0, 0, 0}, {10, 1, 1}), boxItem({1, -1, -1}, {2, 2, 2}));
  for (int i = 2; i < 5; ++i)
    chain = difference(chain, boxItem({2.0 * i - 1, -1, -1}, {2.0 * i, 2, 2}));
  EXPECT_NEAR(volumeOf(chain->ocRepresentation(params())), 6, 1e-9);
}

TEST(BooleanResult, CutsWithTheHalfSpaceOnTheSideThatTheFlagSays) {
  const ExpectAsserts none;
  const auto box = boxItem({0, 0, 0}, {2, 2, 2});
  const struct {
    math::Point3d point;
    math::Vector3d normal;
    bool agreement;
    double left;
  } cases[] = {
      {{0, 0, 0.5}, {0, 0, 1}, false, 2}, {{0, 0, 0.5}, {0, 0, 1}, true, 6},
      {{1, 1, 1}, {1, 1, 1}, false, 4},   {{100, -50, 0.5}, {0, 0, 1}, false, 2},
      {{0, 0, 7}, {0, 0, 1}, false, 8},   {{0, 0, 2}, {0, 0, 1}, false, 8},
      {{0, 0, -1e4}, {0, 0, 1}, true, 8}, {{0.5, 0, 0}, {1, 0, 0}, false, 2},
  };
  for (const auto& [point, normal, agreement, left] : cases) {
    const auto shapes = difference(box, halfSpace(point, normal, agreement));
    EXPECT_NEAR(volumeOf(shapes->ocRepresentation(params())), left, 1e-6)
        << point.x << ' ' << point.y << ' ' << point.z << ' ' << agreement;
  }
  const auto nothingLeft = difference(box, halfSpace({0, 0, -1}, {0, 0, 1}));
  EXPECT_NEAR(volumeOf(nothingLeft->ocRepresentation(params())), 0, 1e-9);
}

TEST(BooleanResult, CutsWithABoundedHalfSpaceWithinItsPolygonAlone) {
  const ExpectAsserts none;
  const auto box = boxItem({0, 0, 0}, {2, 2, 2});
  const struct {
    math::Point3d point;
    math::Vector3d normal;
    double size, left;
  } cases[] = {
      {{0, 0, 1}, {0, 0, 1}, 1, 7}, {{0, 0, 1}, {0, 0, 1}, 9, 4},    {{0, 0, 1}, {0, 0, -1}, 1, 7},
      {{1, 0, 1}, {1, 0, 1}, 9, 4}, {{0, 0, -300}, {0, 0, 1}, 1, 6}, {{0, 0, 9}, {0, 0, 1}, 1, 8},
  };
  for (const auto& [point, normal, size, left] : cases) {
    const auto shapes = difference(box, boundedHalfSpace(point, normal, size));
    EXPECT_NEAR(volumeOf(shapes->ocRepresentation(params())), left, 1e-6)
        << point.z << ' ' << normal.z << ' ' << size;
  }
}

TEST(BooleanResult, ReportsOperandsThatDontFit) {
  const auto box = boxItem({0, 0, 0}, {1, 1, 1});
  const auto space = halfSpace({0, 0, 0}, {0, 0, 1});
  const auto message = [](const std::string& which, const std::string& operation) {
    return which + " operand of boolean " + operation +
           " operation has type which is not supported for " + operation + " operations";
  };
  using Operator = FcBooleanOperator;
  const struct {
    std::shared_ptr<FcBooleanResult> result;
    std::string message;
  } cases[] = {
      {boolean(Operator::DIFFERENCE, kNoItem, box), message("First", "difference")},
      {boolean(Operator::DIFFERENCE, space, box), message("First", "difference")},
      {boolean(Operator::DIFFERENCE, box, kNoItem), message("Second", "difference")},
      {boolean(Operator::INTERSECTION, space, box), message("First", "intersection")},
      {boolean(Operator::INTERSECTION, box, space), message("Second", "intersection")},
      {boolean(Operator::UNION, kNoItem, box), message("First", "union")},
      {boolean(Operator::UNION, box, space), message("Second", "union")},
  };
  for (const auto& [result, expected] : cases) {
    const ExpectAsserts asserts({expected, expected});
    EXPECT_TRUE(result->ocRepresentation(params()).empty());
    EXPECT_FALSE(result->boundingBox(params()));
  }
}

TEST(BooleanResult, LeavesTheBodyUncutByAToolThatIsNone) {
  const auto box = boxItem({0, 0, 0}, {1, 1, 1});
  const std::pair<std::shared_ptr<geometry::FcRepresentationItem>, const char*> tools[] = {
      {std::make_shared<FcHalfSpaceSolid>(), nullptr},
      {boundedHalfSpace({0, 0, 0}, {1, 0, 0}, 1),
       "Polygons extrusion direction can't be parallel to the half space surface."},
      {boxItem({0, 0, 0}, {1, 1, 0.5}, 1),
       "Assertion failed: Tessellated face set must be closed if used in boolean operations"}};
  for (const auto& [tool, reason] : tools) {
    std::vector<test::ExpectedAssert> asserts{
        "Skipping a ifc clipping operation because the second operand was invalid."};
    if (reason) asserts.emplace_back(reason);
    const ExpectAsserts expected(asserts);
    EXPECT_NEAR(volumeOf(difference(box, tool)->ocRepresentation(params())), 1, 1e-9);
  }
}

TEST(BooleanResult, LeavesExpensiveToolsOutSilentlyWhereItMay) {
  const ExpectAsserts none;
  auto cheap = params();
  cheap.skipExpensiveClipping = true;
  const auto cut = difference(boxItem({0, 0, 0}, {2, 2, 2}), boxItem({1, 1, 1}, {3, 3, 3}));
  EXPECT_NEAR(volumeOf(cut->ocRepresentation(cheap)), 8, 1e-9);
  const auto twice = difference(cut, halfSpace({0, 0, 1}, {0, 0, 1}));
  EXPECT_NEAR(volumeOf(twice->ocRepresentation(cheap)), 4, 1e-9);
}

// Open CASCADE would step along such an edge for ever.
TEST(BooleanOperations, RefuseShapesThatReachOutOfAnyModel) {
  const TopoDS_Shape far = BRepPrimAPI_MakeBox(1, 1, 1e20), box = BRepPrimAPI_MakeBox(2, 2, 2);
  const struct {
    std::string name;
    std::function<TopoDS_Shape(const TopoDS_Shape&, const TopoDS_Shape&)> operation;
  } cases[] = {
      {"common", commonOfShapes},
      {"fuse", fuseShapes},
  };
  for (const auto& [name, operation] : cases) {
    const ExpectedAssert failed("OpenCascade boolean '" + name + "' operation failed.");
    const ExpectAsserts expected({failed, failed});
    EXPECT_TRUE(operation(far, box).IsNull());
    EXPECT_TRUE(operation(box, far).IsNull());
  }
  const ExpectAsserts expected(
      {"OpenCascade boolean 'cut' operation failed.", kToolIsLeftOut, kToolIsLeftOut});
  const TopoDS_Shape half = BRepPrimAPI_MakeBox(2, 2, 1);
  EXPECT_TRUE(cutShapes({far}, {box}, 0).IsNull());
  EXPECT_TRUE(cutShapes({box}, {far}, 0).IsSame(box));
  EXPECT_NEAR(volumeOf(cutShapes({box}, {far, half}, 0)), 4, 1e-9);
}

// A frame of triangles, 4 wide, 3 high and 0.3 thick round a hole of 2 by 2.
std::shared_ptr<FcTriangulatedFaceSet> frameOfTriangles() {
  generate::draw::PolygonalFaceSetOpenGL set;
  for (const double y : {0.0, 0.3})
    for (const auto& [x, z] : {std::pair(0.0, 0.0),
                               {4.0, 0.0},
                               {4.0, 3.0},
                               {0.0, 3.0},
                               {1.0, 0.5},
                               {3.0, 0.5},
                               {3.0, 2.5},
                               {1.0, 2.5}})
      set.coordinates.emplace_back(x, y, z);
  const auto quad = [&](std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    set.faces.push_back({.outer = {a, b, c}});
    set.faces.push_back({.outer = {a, c, d}});
  };
  for (std::uint32_t i = 0; i < 4; ++i) {
    const std::uint32_t next = (i + 1) % 4;
    quad(i, next, next + 4, i + 4);            // front
    quad(next + 8, i + 8, i + 12, next + 12);  // back
    quad(next, i, i + 8, next + 8);            // outside
    quad(i + 4, next + 4, next + 12, i + 12);  // round the hole
  }
  auto item = FcTriangulatedFaceSet::fromQorPolygonalFaceSet(set).first;
  item->setClosed(true);
  return item;
}

TEST(BooleanResult, IsTheFrameAgainForAnOpeningAsLargeAsItsHole) {
  const ExpectAsserts none;
  const double volume = (4 * 3 - 2 * 2) * 0.3;
  const math::Matrix near = math::Matrix::createTranslation({13.7, 22.1, 5.3});
  const math::Matrix far = math::Matrix::createZRotate(0.7) * math::Matrix::createXRotate(0.35) *
                           math::Matrix::createTranslation({513.7e3, 5322.1e3, 65.3});
  const struct {
    math::Matrix place;
    double wider, deeper;  // than the hole, on each side
  } cases[] = {{{}, 0, 0},
               {near, 0, 0.1},
               {near, 1e-6, 0},
               {far, -1e-5, 1e-6},
               // Both bodies agree within the tolerance nearly everywhere: nothing would be left.
               {far, 2e-6, -3e-7}};
  for (const auto& [place, wider, deeper] : cases) {
    const auto frame = frameOfTriangles();
    const auto opening =
        boxItem({1 - wider, -deeper, 0.5 - wider}, {3 + wider, 0.3 + deeper, 2.5 + wider});
    frame->transform(place);
    opening->transform(place);
    const auto shapes = difference(frame, opening)->ocRepresentation(params());
    EXPECT_TRUE(isClosedSolidOfVolume(faceSetsFromShapes(shapes, params().curveDiscretization()),
                                      volume, 1e-4))
        << wider << ' ' << deeper;
  }
}

TEST(BooleanResult, CutsTheWholeOfABodyThatIsLargerThanItsBoxTells) {
  const ExpectAsserts none;
  EXPECT_NEAR(
      volumeOf(
          difference(turnedWall(), halfSpace({0, 0, 2}, {0, 0, 1}))->ocRepresentation(params())),
      2.4, 1e-6);
  EXPECT_NEAR(
      volumeOf(
          difference(turnedWall(), halfSpace({0, 1, 0}, {0, 1, 0}))->ocRepresentation(params())),
      2.7, 1e-6);
}

// The box is that of the polygon of six corners, the body exact: slivers would stay at its sides.
TEST(BooleanResult, CutsTheWholeOfARoundBody) {
  for (const double radius : {0.03, 0.1, 0.17}) {
    const ExpectAsserts expected(
        {"doGetPlanarBox(const qor::fc::FcParams&) not implemented for class: class "
         "qor::fc::resource::profile::FcCircleProfileDef"});
    const auto rod =
        test::extrusion(test::makeProfile("IfcCircleProfileDef", "Radius 1", radius), 1);
    const auto shapes =
        difference(rod, halfSpace({0, 0, 0.4}, {0, 0, 1}))->ocRepresentation(params(1));
    EXPECT_NEAR(volumeOf(shapes), std::numbers::pi * radius * radius * 0.4, 1e-6);
    EXPECT_EQ(test::countOf(shapes.at(0), TopAbs_SOLID), 1);
  }
}

TEST(BooleanResult, CutsThroughTheBodyWithASteepBoundedHalfSpace) {
  const ExpectAsserts none;
  // 60 degrees: the prism runs along its plane for twice as long as it runs away from it.
  const double angle = std::numbers::pi / 3;
  const auto shapes =
      difference(boxItem({0, 0, -1}, {1, 1, 0.8}),
                 boundedHalfSpace({0, 0, -3}, {std::sin(angle), 0, std::cos(angle)}, 9))
          ->ocRepresentation(params());
  EXPECT_NEAR(volumeOf(shapes), 0, 1e-6);
}

TEST(BooleanResult, EndsWhereItIsPartOfItself) {
  const auto cycle = difference(boxItem({0, 0, 0}, {1, 1, 1}), boxItem({0, 0, 0}, {1, 1, 1}));
  for (const auto operation : {FcBooleanOperator::DIFFERENCE, FcBooleanOperator::UNION}) {
    cycle->setOperator(operation);
    cycle->setFirstOperand(FcBooleanOperand(cycle));
    const ExpectAsserts expected({"An item is part of itself"});
    EXPECT_TRUE(cycle->ocRepresentation(params()).empty());
  }
  cycle->setFirstOperand({});
}

TEST(BooleanResult, BoxesWhatItsOperationLeavesAtMost) {
  const auto a = boxItem({0, 0, 0}, {2, 2, 2}), b = boxItem({1, 1, 1}, {3, 3, 3});
  const auto box = [&](FcBooleanOperator::Enum operation) {
    return *boolean(operation, a, b)->boundingBox(params());
  };
  EXPECT_EQ(box(FcBooleanOperator::DIFFERENCE), math::Extent({0, 0, 0}, {2, 2, 2}));
  EXPECT_EQ(box(FcBooleanOperator::INTERSECTION), math::Extent({1, 1, 1}, {2, 2, 2}));
  EXPECT_EQ(box(FcBooleanOperator::UNION), math::Extent({0, 0, 0}, {3, 3, 3}));
}

TEST(BooleanOperand, TakesTheFirstAlternativeThatTheItemFits) {
  using Types = FcBooleanOperand::Types;
  const auto typeOf = [](const std::shared_ptr<geometry::FcRepresentationItem>& item) {
    return FcBooleanOperand::fromRepresentationItem(item).type();
  };
  EXPECT_EQ(typeOf(boxItem({0, 0, 0}, {1, 1, 1})), Types::TessellatedFaceSet);
  EXPECT_EQ(typeOf(halfSpace({0, 0, 0}, {0, 0, 1})), Types::HalfSpaceSolid);
  EXPECT_EQ(typeOf(difference(kNoItem, kNoItem)), Types::BooleanResult);
  EXPECT_EQ(typeOf(std::make_shared<geometry::FcPolyline>()), Types::NotSet);
  EXPECT_EQ(typeOf(nullptr), Types::NotSet);
}

TEST(BooleanOperand, ReportsAnAlternativeThatIsntTheOneAskedFor) {
  const FcBooleanOperand box(std::shared_ptr<FcTessellatedFaceSet>(boxItem({0, 0, 0}, {1, 1, 1})));
  const ExpectAsserts expected(
      {"Expect operand to be a half space solid.", "Expect to have a valid boolean result.",
       "Assertion failed: boolean operand not set when requesting as asserted geometric "
       "representation item"});
  EXPECT_FALSE(box.HalfSpaceSolidAssert());
  EXPECT_FALSE(FcBooleanOperand(FcBooleanOperand::Types::BooleanResult).BooleanResultAssert());
  EXPECT_FALSE(FcBooleanOperand().asGeometricRepresentationItemAssert());
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
