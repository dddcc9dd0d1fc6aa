#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorQueueContext.h"
#include "Fc/ComplexGeometry/FcImplicitClippingTask.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/ComplexGeometry/FcThreadedComplexGeometryProcessor.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Drawing/FcClip.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Profile/FcArbitraryClosedProfileDef.h"
#include "Tests/Fc/ComplexGeometry/Items.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/RecordingTarget.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc {
namespace {

using test::boxItem;
using test::halfSpace;
using test::isClosedSolidOfVolume;
using test::params;
using ClipItems = std::vector<FcImplicitClippingTask::ClipItem>;

math::Matrix at(double x, double y, double z) { return math::Matrix::createTranslation({x, y, z}); }

std::vector<generate::draw::PolygonalFaceSetOpenGL> faceSets(
    const std::unique_ptr<FcComplexGeometryTaskResult>& result) {
  const auto* sets = dynamic_cast<const FcPolygonalFaceSetResult*>(result.get());
  return sets ? sets->faceSets() : FcPolygonalFaceSetResult::FaceSets{};
}

TEST(ImplicitClipping, CutsAWallByItsOpeningsAtOnceInTheFrameOfTheWall) {
  const test::ExpectAsserts none;
  const auto wall = boxItem({0, 0, 0}, {10, 0.3, 3});
  const auto window = boxItem({0, -0.1, 0}, {1, 0.5, 1});
  const math::Matrix wallFrame = math::Matrix::createZRotate(0.7) * at(1e4, -2e4, 30);
  ClipItems openings;
  for (int i = 0; i < 4; ++i) openings.emplace_back(window, at(2 * i + 1, 0, 1) * wallFrame);
  const FcImplicitClippingTask task(params(), wall, wallFrame, openings);
  const auto sets = faceSets(task.process());
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_TRUE(isClosedSolidOfVolume(sets, 10 * 0.3 * 3 - 4 * 0.3, 1e-6));
  // Planar faces stay polygons: the six of the wall and four for each opening.
  EXPECT_EQ(sets[0].faces.size(), 6u + 4 * 4);
  EXPECT_EQ(sets[0].coordinates.size(), 8u + 4 * 8);
}

TEST(ImplicitClipping, IsRightForHardCases) {
  const auto wall = boxItem({0, 0, 0}, {4, 1, 3});
  const struct {
    const char* name;
    math::Point3d low, high;
    double left;
    bool inTwo = false;
  } cases[] = {
      {"flush with both sides", {1, 0, 1}, {2, 1, 2}, 11},
      {"flush with the floor", {1, 0, 0}, {2, 1, 2}, 10},
      {"a niche", {1, 0, 1}, {2, 0.5, 2}, 11.5},
      {"over a corner", {-1, -1, 2}, {1, 2, 4}, 11},
      {"the whole wall", {-1, -1, -1}, {5, 2, 4}, 0},
      {"exactly the wall", {0, 0, 0}, {4, 1, 3}, 0},
      {"touching a face from outside", {4, 0, 0}, {5, 1, 3}, 12},
      {"in two parts", {1, -1, -1}, {2, 2, 4}, 9},
      {"far away", {100, 0, 0}, {101, 1, 3}, 12},
  };
  for (const auto& [name, low, high, left, inTwo] : cases) {
    const test::ExpectAsserts none;
    const FcImplicitClippingTask task(params(), wall, {}, {{boxItem(low, high), {}}});
    const auto sets = faceSets(task.process());
    if (left == 0)
      EXPECT_TRUE(sets.empty()) << name;
    else
      EXPECT_TRUE(isClosedSolidOfVolume(sets, left, 1e-9)) << name;
  }
}

TEST(ImplicitClipping, LeavesOutExpensiveToolsThatAreFarAwayOrUnwanted) {
  const auto wall = boxItem({0, 0, 0}, {4, 1, 3}), box = boxItem({0, 0, 0}, {1, 1, 1});
  const auto far = halfSpace({100, 0, 0}, {1, 0, 0});
  const ClipItems tools{{box, at(50, 0, 0)}, {box, at(1, 0, 1)}, {far, {}}, {box, at(4, 0, 0)}};
  EXPECT_EQ(FcImplicitClippingTask(params(), wall, {}, tools).clipItems().size(), 3u);
  EXPECT_EQ(FcImplicitClippingTask(params(), wall, at(50, 0, 0), tools).clipItems().size(), 2u);
  auto cheap = params();
  cheap.skipExpensiveClipping = true;
  const FcImplicitClippingTask task(cheap, wall, {}, tools);
  ASSERT_EQ(task.clipItems().size(), 1u);
  EXPECT_NE(task.clipItems()[0].first, far) << "a task works on copies";
}

TEST(ImplicitClipping, CutsAWallWhoseProfileIsTurnedByAFaceSetAtItsEnd) {
  const test::ExpectAsserts none;
  const FcImplicitClippingTask task(
      params(), test::turnedWall(), {},
      {{boxItem({-1, 1.2, 1}, {1, 1.7, 2}), {}}, {boxItem({3, 0, 1}, {4, 1, 2}), {}}});
  EXPECT_EQ(task.clipItems().size(), 1u);
  EXPECT_TRUE(isClosedSolidOfVolume(faceSets(task.process()), 3.6 - 0.5 * 0.3, 1e-9));
}

TEST(ImplicitClipping, CutsATaperedBodyAsItIsDrawn) {
  const test::ExpectAsserts none;
  using namespace resource::geometricmodel;
  const auto tower = test::make<FcExtrudedAreaSolidTapered>(
      {{"SweptArea", test::makeProfile("IfcRectangleProfileDef", "XDim 2, YDim 2")},
       {"EndSweptArea", test::makeProfile("IfcRectangleProfileDef", "XDim 1, YDim 1")},
       {"ExtrudedDirection", resource::geometry::makeDirection(math::Vector3d(0, 0, 1))},
       {"Depth", 3}});
  const struct {
    math::Point3d low, high;
    double left;
  } cases[] = {{{5, 5, 0}, {6, 6, 1}, 7},           // a frustum of 3 / 3 * (4 + 2 + 1)
               {{0, -3, -1}, {3, 3, 4}, 3.5},       // half of it
               {{-3, -3, 1.5}, {3, 3, 4}, 4.625}};  // its lower half: 1.5 / 3 * (4 + 3 + 2.25)
  for (const auto& [low, high, left] : cases) {
    const FcImplicitClippingTask task(params(), tower, {}, {{boxItem(low, high), {}}});
    EXPECT_TRUE(isClosedSolidOfVolume(faceSets(task.process()), left, 1e-6));
  }
}

TEST(ImplicitClipping, LeavesABodyWhoseProfileCrossesItselfThere) {
  const auto outline = test::make<resource::geometry::FcPolyline>();
  outline->setPoints(std::vector<math::Point2d>{{0, 0}, {2, 1}, {2, 0}, {0, 1}}, true);
  const auto bowTie = test::extrusion(
      test::make<resource::profile::FcArbitraryClosedProfileDef>({{"OuterCurve", outline}}), 3);
  const test::ExpectAsserts none;
  for (const double x : {0.2, 0.8, 1.4}) {
    const FcImplicitClippingTask task(params(), bowTie, {},
                                      {{boxItem({x, -1, 1}, {x + 0.4, 2, 2}), {}}});
    const auto sets = faceSets(task.process());
    ASSERT_EQ(sets.size(), 1u) << x;
    EXPECT_GE(sets[0].faces.size(), 6u) << x;
  }
}

TEST(Clip, DrawsWhatCantBeCutWhole) {
  using resource::geometricmodel::FcSweptDiskSolid;
  const auto path = test::make<resource::geometry::FcPolyline>();
  path->setPoints(std::vector<math::Point3d>{{0, 0, 0}, {0, 0, 2}}, false);
  const auto rod = test::make<FcSweptDiskSolid>({{"Directrix", path}, {"Radius", 0.1}});
  const auto drawnCalls = [&](bool clipping) {
    test::RecordingTarget target;
    FcDrawInterfaceWrapper wrapper(target);
    FcClip::ClippingItemsWorker worker(wrapper);
    if (clipping) worker.addClipObject({boxItem({0, -1, 1}, {2, 2, 2}), {}});
    wrapper.drawConstRepresentationItem(rod, FcDrawParams(wrapper),
                                        generate::draw::SurfaceDrawType::Surface);
    return target.calls;
  };
  setCurrentComplexGeometryProcessor(std::make_unique<FcThreadedComplexGeometryProcessor>());
  {
    const test::ExpectAsserts expected(
        {"ocRepresentation(const qor::fc::FcParams&) not implemented for class: class "
         "qor::fc::resource::geometricmodel::FcSweptDiskSolid",
         "The item has no solid that openings could be cut out of; it is drawn whole."});
    EXPECT_EQ(drawnCalls(true), drawnCalls(false));
    EXPECT_FALSE(drawnCalls(false).empty());
  }
  setCurrentComplexGeometryProcessor(nullptr);
}

// The thread sanitizer watches this one: workers touch nothing of the model that changes.
TEST(ImplicitClipping, WorksOnCopiesWhileTheModelChanges) {
  const test::ExpectAsserts none;
  const FcThreadedComplexGeometryProcessor pool;
  const FcComplexGeometryProcessorQueueContext context;
  const auto wall = boxItem({0, 0, 0}, {4, 1, 3}), opening = boxItem({1, -1, 1}, {2, 2, 2});
  std::vector<std::future<std::unique_ptr<FcComplexGeometryTaskResult>>> results;
  for (int i = 0; i < 12; ++i) {
    results.push_back(
        pool.processAsync(std::make_unique<FcImplicitClippingTask>(
                              params(), wall, math::Matrix(), ClipItems{{opening, math::Matrix()}}),
                          context, FcThreadedComplexGeometryProcessor::PriorityHigh));
    wall->transform(at(0.001, 0, 0));
    opening->transform(at(0.001, 0, 0));
    wall->setClosed(i % 2 == 0);
  }
  for (auto& result : results) EXPECT_TRUE(isClosedSolidOfVolume(faceSets(result.get()), 11, 1e-6));
}

TEST(Clip, CutsThroughTheCurrentProcessorAndGivesNothingWithoutOne) {
  const test::ExpectAsserts none;
  const auto wall = boxItem({0, 0, 0}, {4, 1, 3});
  FcClip clip;
  FcClip::ClippingItemsWorker worker(clip);
  worker.addClipObject({boxItem({1, -1, 1}, {2, 2, 2}), {}});
  EXPECT_TRUE(FcClip::getClippedItems(wall, {}, params(), clip).empty());
  setCurrentComplexGeometryProcessor(std::make_unique<FcThreadedComplexGeometryProcessor>());
  EXPECT_TRUE(isClosedSolidOfVolume(FcClip::getClippedItems(wall, {}, params(), clip), 11, 1e-9));
  setCurrentComplexGeometryProcessor(nullptr);
}

class ItemMeasures : public testing::Test {
 protected:
  ItemMeasures() {
    setCurrentComplexGeometryProcessor(std::make_unique<FcThreadedComplexGeometryProcessor>());
  }
  ~ItemMeasures() override { setCurrentComplexGeometryProcessor(nullptr); }
};

TEST_F(ItemMeasures, OutlineTheFacesOfABoxWhereItStands) {
  const test::ExpectAsserts none;
  const auto polygons = boxItem({0, 0, 0}, {1, 2, 3})->getSurfaces(params(), at(10, 0, 0));
  ASSERT_EQ(polygons.size(), 6u);
  double area = 0;
  math::Extent extent;
  for (const auto& polygon : polygons) {
    EXPECT_EQ(polygon.polygon().points().size(), 4u);
    area += std::abs(polygon.polygon().signedArea());
    for (const math::Point3d& point : polygon.points()) extent.include(point);
  }
  EXPECT_NEAR(area, 22, 1e-9);
  EXPECT_TRUE((extent.minimum() - math::Point3d(10, 0, 0)).isNear({}));
  EXPECT_TRUE((extent.maximum() - math::Point3d(11, 2, 3)).isNear({}));
}

TEST_F(ItemMeasures, GiveTheLeastDistanceWhereTheItemsStand) {
  const test::ExpectAsserts none;
  const auto box = boxItem({0, 0, 0}, {1, 1, 1});
  const struct {
    math::Matrix other;
    double distance;
  } cases[] = {
      {at(3, 0, 0), 2}, {at(1, 0, 0), 0}, {{}, 0}, {at(0.5, 0, 0), 0}, {at(2, 2, 2), std::sqrt(3)}};
  for (const auto& [other, expected] : cases) {
    const auto distance = box->getDistanceToOtherItem(params(), {}, *box, other);
    ASSERT_TRUE(distance);
    EXPECT_NEAR(*distance, expected, 1e-9);
  }
}

TEST_F(ItemMeasures, ReportThatThereIsNoProcessor) {
  setCurrentComplexGeometryProcessor(nullptr);
  const char* const message = "No FcComplexGeometryProcessorInterface implementation set.";
  const auto box = boxItem({0, 0, 0}, {1, 1, 1});
  const test::ExpectAsserts expected(
      {{message, "qor::fc::resource::geometry::FcRepresentationItem::getSurfaces"},
       {message, "qor::fc::resource::geometry::FcRepresentationItem::getDistanceToOtherItem"}});
  EXPECT_TRUE(box->getSurfaces(params(), {}).empty());
  EXPECT_FALSE(box->getDistanceToOtherItem(params(), {}, *box, {}));
}

TEST_F(ItemMeasures, AndCutsGiveNothingForAnItemWithoutShape) {
  const auto box = boxItem({0, 0, 0}, {1, 1, 1});
  const auto point = std::make_shared<resource::geometry::FcCartesianPoint>();
  const char* const message =
      "ocRepresentation(const qor::fc::FcParams&) not implemented for class: class "
      "qor::fc::resource::geometry::FcCartesianPoint";
  const test::ExpectAsserts expected({message, message});
  EXPECT_FALSE(box->getDistanceToOtherItem(params(), {}, *point, {}));
  EXPECT_FALSE(FcImplicitClippingTask(params(), point, {}, {}).process());
}

}  // namespace
}  // namespace qor::fc
