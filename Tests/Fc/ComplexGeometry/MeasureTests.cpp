#include <gtest/gtest.h>

#include <cmath>

#include "Fc/ComplexGeometry/FcThreadedComplexGeometryProcessor.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Tests/Fc/ComplexGeometry/Items.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using test::boxItem;
using test::params;

math::Matrix at(double x, double y, double z) { return math::Matrix::createTranslation({x, y, z}); }

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

TEST_F(ItemMeasures, GiveNoDistanceToAnItemWithoutShape) {
  const auto box = boxItem({0, 0, 0}, {1, 1, 1});
  const auto point = std::make_shared<resource::geometry::FcCartesianPoint>();
  const test::ExpectAsserts expected(
      {"ocRepresentation(const qor::fc::FcParams&) not implemented for class: class "
       "qor::fc::resource::geometry::FcCartesianPoint"});
  EXPECT_FALSE(box->getDistanceToOtherItem(params(), {}, *point, {}));
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

}  // namespace
}  // namespace qor::fc
