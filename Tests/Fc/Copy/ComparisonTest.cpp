#include <gtest/gtest.h>

#include <limits>

#include "Fc/Resource/Actor/FcActorRole.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcCsgPrimitive3D.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"
#include "Fc/Resource/GeometricModel/FcSolidModel.h"
#include "Fc/Resource/GeometricModel/FcTessellatedFaceSet.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcMeasureWithUnit.h"
#include "Fc/Resource/Measure/FcMonetaryUnit.h"
#include "Fc/Resource/Measure/FcNamedUnit.h"
#include "Fc/Shared/BuildingElements/FcDoor.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/SkipAttributeParams.h"
#include "Tests/Support/Make.h"
#include "Tests/Support/RandomModel.h"

namespace qor::fc {
namespace {

using test::make;
using namespace resource::actor;
using resource::geometricconstraint::FcLocalPlacement;
using namespace resource::geometricmodel;
using namespace resource::geometry;
using namespace resource::measure;
using namespace shared::buildingelements;

std::shared_ptr<FcCartesianPoint> point(double x, double y) {
  return makePoint(math::Point2d(x, y));
}

std::shared_ptr<FcPolyline> polyline(const std::vector<std::shared_ptr<FcCartesianPoint>>& points) {
  return make<FcPolyline>({{"Points", points}});
}

std::shared_ptr<FcMeasureWithUnit> measure(FcValue value) {
  auto result = make<FcMeasureWithUnit>();
  result->setValueComponent(std::move(value));
  return result;
}

TEST(Comparison, IsAStrictWeakOrderOnEntitiesOfManyClasses) {
  for (std::uint32_t seed = 1; seed <= 6; ++seed) {
    const auto entities = test::randomEntities(48, seed);
    const std::size_t n = entities.size();
    std::vector<std::vector<bool>> less(n, std::vector<bool>(n));
    for (std::size_t i = 0; i < n; ++i)
      for (std::size_t j = 0; j < n; ++j) less[i][j] = entities[i]->isLessThan(*entities[j]);
    for (std::size_t i = 0; i < n; ++i) {
      EXPECT_FALSE(less[i][i]);
      for (std::size_t j = 0; j < n; ++j) {
        EXPECT_FALSE(less[i][j] && less[j][i]) << seed << ": " << i << ", " << j;
        EXPECT_EQ(entities[i]->isEqualTo(*entities[j]), !less[i][j] && !less[j][i]);
        for (std::size_t k = 0; k < n; ++k) {
          EXPECT_FALSE(less[i][j] && less[j][k] && !less[i][k])
              << seed << ": " << i << ", " << j << ", " << k;
          // What is equal to one of a pair stands to the other as that one does.
          const bool equal = !less[i][j] && !less[j][i];
          EXPECT_TRUE(!equal || less[i][k] == less[j][k])
              << seed << ": " << i << ", " << j << ", " << k;
        }
      }
    }
    for (const auto& entity : entities) test::empty(*entity);
  }
}

TEST(Comparison, OrdersByKindAsStated) {
  const auto named = [](const char* name) { return make<FcPerson>({{"FamilyName", name}}); };
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* what;
    std::shared_ptr<FcBase> less, greater;
  } cases[] = {
      {"absent before present", make<FcPerson>(), named("")},
      {"bytes unsigned", named("Z"), named("\xC3\x84")},
      {"the shorter list, whatever it holds", polyline({point(9, 9)}),
       polyline({point(0, 0), point(0, 0)})},
      {"the first difference of equally long lists", polyline({point(0, 0), point(9, 9)}),
       polyline({point(1, 0), point(0, 0)})},
      {"null before a reference", polyline({nullptr}), polyline({point(0, 0)})},
      {"a difference in front of a null behind it", polyline({point(0, 0), point(0, 0)}),
       polyline({point(1, 0), nullptr})},
      {"numbers without tolerance", point(1, 0), point(1 + 1e-15, 0)},
      {"not a number behind all numbers", point(1e308, 0), point(nan, 0)},
      {"selects by alternative first", measure(resource::measure::FcAreaMeasure(9)),
       measure(FcLengthMeasure(1))},
      {"selects by value then", measure(FcLengthMeasure(1)), measure(FcLengthMeasure(2))},
      {"a set select before none", measure(FcLengthMeasure(1)), measure({})},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(c.less->isLessThan(*c.greater)) << c.what;
    EXPECT_FALSE(c.greater->isLessThan(*c.less)) << c.what;
    EXPECT_FALSE(c.less->isEqualTo(*c.greater)) << c.what;
  }
  EXPECT_TRUE(point(nan, 0)->isEqualTo(*point(nan, 0)));
}

TEST(Comparison, OrdersEntitiesOfDifferentClassesByType) {
  const auto wall = std::make_shared<FcWall>();
  const auto door = std::make_shared<FcDoor>();
  EXPECT_NE(wall->isLessThan(*door), door->isLessThan(*wall));
  EXPECT_EQ(wall->isLessThan(*door), typeid(FcWall).before(typeid(FcDoor)));
  EXPECT_FALSE(wall->isEqualTo(*door));
}

TEST(Comparison, PassesOverWhatTheSkipFunctionNamesAtAnyDepth) {
  auto a = polyline({point(1, 2)});
  auto b = polyline({point(3, 4)});
  const auto skipCoordinates = [](const SkipAttributeParams& params) {
    return params.attribute == "Coordinates";
  };
  EXPECT_FALSE(a->isEqualTo(*b));
  EXPECT_TRUE(a->isEqualToSkipAttributes(*b, skipCoordinates));
  EXPECT_FALSE(a->isLessThanSkipAttributes(*b, skipCoordinates));
  EXPECT_TRUE(a->isLessThanSkipAttributes(*b, {}));
}

TEST(Comparison, ComparesWhatIsSharedManyTimesOverOnce) {
  const auto tower = [] {
    auto level = make<FcBooleanResult>();
    for (int i = 0; i < 40; ++i)
      level = make<FcBooleanResult>({{"FirstOperand", level}, {"SecondOperand", level}});
    return level;
  };
  EXPECT_TRUE(tower()->isEqualTo(*tower()));
}

TEST(Comparison, EndsOnCyclesAndOnLongChains) {
  const auto ring = [] {
    const auto a = make<FcLocalPlacement>(), b = make<FcLocalPlacement>({{"PlacementRelTo", a}});
    a->setPlacementRelTo(b);
    return a;
  };
  const auto one = ring(), two = ring();
  EXPECT_TRUE(one->isEqualTo(*two));
  one->clearPlacementRelTo();
  EXPECT_TRUE(one->isLessThan(*two));
  two->clearPlacementRelTo();

  const auto chain = [] {
    auto last = make<FcLocalPlacement>();
    for (int i = 0; i < 200000; ++i) last = make<FcLocalPlacement>({{"PlacementRelTo", last}});
    return last;
  };
  EXPECT_TRUE(chain()->isEqualTo(*chain()));
}

TEST(Comparison, OrdersSelectsByContent) {
  const FcBooleanOperand none, result(std::make_shared<FcBooleanResult>());
  EXPECT_TRUE(result < none);
  EXPECT_FALSE(none < none);
  EXPECT_FALSE(result < FcBooleanOperand(std::make_shared<FcBooleanResult>()));
}

}  // namespace
}  // namespace qor::fc
