#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Fc/Resource/Geometry/FcClothoid.h"
#include "Fc/Resource/Geometry/FcCurveSegment.h"
#include "Fc/Resource/Geometry/FcGradientCurve.h"
#include "Fc/Shapes/GradientPath.h"
#include "Fc/Shapes/TurningPath.h"
#include "Items.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometry {
namespace {

using namespace math;
using std::numbers::pi;
using test::ExpectAsserts;

const math::CurveDiscretization& fine = params.curveDiscretization();

TEST(TurningPath, IsStraightOrRoundWithEvenCurvature) {
  const auto straight = turningPath({}, 5, 100, fine);
  ASSERT_EQ(straight.size(), 2u);
  EXPECT_LT(straight.back().distance({100, 0}), 1e-12);
  EXPECT_EQ(turningPath({}, 5, 0, fine), (Points2d{{0, 0}}));
  EXPECT_TRUE(turningPath({}, 5, NAN, fine).empty());
  for (const double radius : {500.0, -500.0, 69230.8}) {
    const auto arc = turningPath({1 / radius, 0}, 1e5, 400, fine);
    for (const Point2d& point : arc)
      EXPECT_NEAR(point.distance({0, radius}), std::abs(radius), 1e-9);
    EXPECT_NEAR(arc.back().x, radius * std::sin(400 / radius), 1e-9);
    EXPECT_EQ(turningPath({1 / radius, 0}, 1e5, -400, fine).back().y, -arc.back().y);
  }
}

TEST(TurningPath, FollowsAClothoid) {
  const double constant = 200, length = 120;
  const auto path = turningPath({0, 0.5 / (constant * constant)}, 0, length, fine);
  const double t = std::pow(length / constant, 4);  // the series of the clothoid
  EXPECT_NEAR(path.back().x, length * (1 - t / 40 + t * t / 3456 - t * t * t / 599040), 1e-9);
  EXPECT_NEAR(path.back().y,
              std::pow(length, 3) / (6 * constant * constant) *
                  (1 - t / 56 + t * t / 7040 - t * t * t / 1612800),
              1e-9);
  // Its halves, one laid behind the other, are the whole.
  const auto first = turningPath({0, 0.5 / (constant * constant)}, 0, 60, fine);
  const auto second = turningPath({0, 0.5 / (constant * constant)}, 60, 60, fine);
  const double turned = 60.0 * 60 / (2 * constant * constant);
  EXPECT_LT((first.back() + (second.back() - Point2d()).rotate(turned)).distance(path.back()),
            1e-9);
}

TEST(GradientPath, GivesHeightsToAPathByItsLength) {
  const Points3d path{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
  const Points3d heights{{5, 100, 0}, {15, 110, 0}, {20, 110, 0}};
  EXPECT_EQ(gradientPath(path, 20, heights),
            (Points3d{{5, 0, 100}, {10, 0, 105}, {10, 5, 110}, {10, 10, 110}}));
  EXPECT_EQ(gradientPath(path, 40, {{0, 1, 0}, {40, 1, 0}}).size(), 3u);  // a curve twice as long
  EXPECT_TRUE(gradientPath({}, 0, heights).empty());
  EXPECT_TRUE(gradientPath(path, 20, {}).empty());
  EXPECT_TRUE(gradientPath(path, 20, {{30, 1, 0}, {40, 1, 0}}).empty());
}

std::shared_ptr<FcCurveSegment> segment(const std::shared_ptr<FcCurve>& parent,
                                        const Point2d& start, const math::Vector2d& direction,
                                        double length) {
  const auto placement =
      makePlacement(Matrix({start.x, start.y, 0}, {direction.x, direction.y, 0}, {0, 0, 1}));
  auto result = test::make<FcCurveSegment>({{"ParentCurve", parent}, {"Placement", placement}});
  result->setSegmentStart(FcCurveMeasureSelect(measure::FcLengthMeasure(0)));
  result->setSegmentLength(FcCurveMeasureSelect(measure::FcLengthMeasure(length)));
  return result;
}

/// A straight, a clothoid into a right bend, the bend, and the end, as a real alignment has them.
template <typename Curve>
std::shared_ptr<Curve> alignment() {
  const auto clothoid = test::make<FcClothoid>({{"ClothoidConstant", -273.861278752584}});
  auto result = std::make_shared<Curve>();
  result->pushBackSegments(segment(line({}, {2, 0, 0}), {0, 0}, {1, 0}, 400));
  result->pushBackSegments(segment(clothoid, {400, 0}, {1, 0}, 150));
  result->pushBackSegments(segment(circle(500.000000000002), {549.662851380011, -7.48795505445},
                                   {0.988771077936042, -0.149438132473604}, -400));
  return result;
}

TEST(CurveSegment, BeginsWhereTheOneBeforeEnds) {
  const auto curve = alignment<FcCompositeCurve>();
  const ExpectAsserts none;  // so they join end to end
  const auto points = pointsOf(*curve);
  ASSERT_GT(points.size(), 10u);
  EXPECT_TRUE(curve->is2d());
  EXPECT_NEAR(lengthOf(points), 950, 0.15);  // 400 m round the bend in segments of five degrees
  EXPECT_EQ(curve->curve2d(params, {}, {}, false)->size(), points.size());
  const math::Vector2d radius(-0.149438132473604, -0.988771077936042);
  const Point2d center = Point2d(549.662851380011, -7.48795505445) + radius * 500;
  EXPECT_NEAR(Point2d(points.back().x, points.back().y).distance(center), 500, 1e-6);
}

TEST(CurveSegment, TakesParametersOfItsParent) {
  const auto parent = circle(2);
  const auto quarter = segment(parent, {0, 0}, {1, 0}, 0);
  quarter->setSegmentLength(FcCurveMeasureSelect(measure::FcParameterValue(pi / 2)));
  EXPECT_LT(quarter->curve(params).back().distance({2, 2, 0}), 1e-12);
  EXPECT_DOUBLE_EQ(*quarter->length(), pi);
  parent->setRadius(0);
  const ExpectAsserts expected(
      {"FcSegment::curve is not implemented for class "
       "qor::fc::resource::geometry::FcCurveSegment"});
  EXPECT_TRUE(quarter->curve(params).empty());
}

TEST(GradientCurve, LiftsItsBaseCurve) {
  auto gradient = std::make_shared<FcGradientCurve>();
  const double slope = -0.01, run = std::sqrt(1 - slope * slope);
  gradient->pushBackSegments(segment(line({}, {2, 0, 0}), {0, 150}, {run, slope}, 950 / run));
  {
    const ExpectAsserts expected({"FcGradientCurve::BaseCurve is required"});
    EXPECT_TRUE(pointsOf(*gradient).empty());
  }
  const auto base = alignment<FcCompositeCurve>();
  gradient->setBaseCurve(base);
  const auto points = pointsOf(*gradient);
  const auto plan = pointsOf(*base);
  ASSERT_EQ(points.size(), plan.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    EXPECT_LT(Point2d(points[i].x, points[i].y).distance({plan[i].x, plan[i].y}), 1e-9);
  EXPECT_NEAR(points[1].z, 146, 1e-3);
  EXPECT_NEAR(points.back().z, 140.5, 1e-3);
  EXPECT_EQ(*gradient->curve2d(params, {}, {}, false), *base->curve2d(params, {}, {}, false));
}

}  // namespace
}  // namespace qor::fc::resource::geometry
