#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Qor/Math/Arc.h"
#include "Qor/Math/Ellipse.h"
#include "Qor/Math/Plane.h"
#include "Qor/Math/Polygon.h"
#include "Qor/Math/StraightLine.h"
#include "RandomGeometry.h"

namespace qor::math {
namespace {

using _2d::Arc;
using _2d::ArcFactory;
using _2d::ArcOrientation;
using _2d::ArcType;
using _2d::Ellipse;
using _2d::Inclusion;
using _2d::StraightLine;
using _3d::Plane;
using _3d::PlaneFactory;
using std::numbers::pi;

TEST(Arc, IsFoundThroughThreePoints) {
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    const double sweep = random.number(0.1, 6.1) * (i % 2 ? 1 : -1);
    const Arc arc(random.point2d(1e3), random.number(0.1, 1e3), random.angle(), sweep);
    const auto found =
        ArcFactory::fromThreePoints(arc.startPoint(), arc.point(sweep / 2), arc.endPoint());
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->radius() / arc.radius(), 1, 1e-8);
    EXPECT_NEAR(found->sweepAngle(), sweep, 1e-8);
    EXPECT_LT(found->center().distance(arc.center()), 1e-6);
    EXPECT_LT(found->startPoint().distance(arc.startPoint()), 1e-9);
  }
}

TEST(Arc, IsFoundByItsEndsRadiusAndSide) {
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    const Point2d start = random.point2d(100), end = random.point2d(100);
    const double radius = start.distance(end) * random.number(0.51, 20);
    for (const auto orientation : {ArcOrientation::counterClockwise, ArcOrientation::clockwise})
      for (const auto type : {ArcType::large, ArcType::small}) {
        const auto arc =
            ArcFactory::fromTwoPointsRadiusDirectionAndLarge(start, end, radius, orientation, type);
        ASSERT_TRUE(arc);
        EXPECT_LT(arc->startPoint().distance(start), 1e-9);
        EXPECT_LT(arc->endPoint().distance(end), 1e-9);
        EXPECT_EQ(arc->radius(), radius);
        EXPECT_EQ(arc->sweepAngle() > 0, orientation == ArcOrientation::counterClockwise);
        EXPECT_EQ(std::abs(arc->sweepAngle()) > pi, type == ArcType::large);
      }
  }
  const auto quarter = ArcFactory::fromTwoPointsRadiusDirectionAndLarge(
      {0, 0}, {1, 1}, 1, ArcOrientation::counterClockwise, ArcType::small);
  EXPECT_LT(quarter->point(pi / 4).distance({std::sqrt(0.5), 1 - std::sqrt(0.5)}), 1e-15);
}

TEST(Arc, DoesNotExistForWrongNumbers) {
  const auto exists = [](const Point2d& end, double radius) {
    return ArcFactory::fromTwoPointsRadiusDirectionAndLarge(
               {0, 0}, end, radius, ArcOrientation::clockwise, ArcType::small)
        .has_value();
  };
  EXPECT_TRUE(exists({2, 0}, 1));
  EXPECT_TRUE(exists({2 + 1e-9, 0}, 1));
  EXPECT_FALSE(exists({2.01, 0}, 1));
  EXPECT_FALSE(exists({0, 0}, 1));
  EXPECT_FALSE(exists({1, 0}, 0));
  EXPECT_FALSE(exists({1, 0}, -1));
  EXPECT_FALSE(exists({1, 0}, NAN));
  EXPECT_FALSE(exists({INFINITY, 0}, 1));
}

TEST(Ellipse, KnowsItsAnglesAndItsBox) {
  RandomGeometry random;
  const CurveDiscretization fine(1e-6, 8, 100000);
  for (int i = 0; i < 100; ++i) {
    const Matrix2d frame(random.point2d(10), Vector2d(1, 0).rotate(random.angle()));
    const Ellipse ellipse(frame, random.number(0.5, 3), random.number(0.5, 3));
    const double angle = random.number(0, 2 * pi);
    EXPECT_NEAR(ellipse.angleFromPoint(ellipse.point(angle)), angle, 1e-12);
    const auto points = ellipse.pointsGet(fine, 0, 2 * pi);
    EXPECT_LT(points.front().distance(points.back()), 1e-14);
    const Extent2d around = Extent2d::ofPoints(points), box = ellipse.extent();
    EXPECT_LT(around.minimum().distance(box.minimum()), 2e-6);
    EXPECT_LT(around.maximum().distance(box.maximum()), 2e-6);
  }
  const auto part = Ellipse(3, 1).pointsGet(fine, pi / 2, -pi / 2);
  EXPECT_LT(part.front().distance({0, 1}), 1e-15);
  EXPECT_LT(part.back().distance({3, 0}), 1e-15);
  EXPECT_TRUE(Ellipse(0, 0).pointsGet(fine, 0, 1).empty());
}

TEST(Plane, IsMetAlongAVectorBothWays) {
  const Plane plane({0, 0, 2}, {0, 0, -5});
  EXPECT_EQ(plane.projectAlongVectorEitherDirection({1, 1, 0}, {1, 0, 1}), Point3d(3, 1, 2));
  EXPECT_EQ(plane.projectAlongVectorEitherDirection({1, 1, 0}, {-1, 0, -1}), Point3d(3, 1, 2));
  EXPECT_FALSE(plane.projectAlongVectorEitherDirection({1, 1, 0}, {1, 1, 0}));
  EXPECT_FALSE(plane.projectAlongVectorEitherDirection({1, 1, 0}, {}));
  EXPECT_FALSE(plane.projectAlongVectorEitherDirection({1, 1, 0}, {0, 0, NAN}));
  EXPECT_DOUBLE_EQ(plane.signedDistance({7, 7, 0}), 2);
}

TEST(Plane, GoesThroughThreePoints) {
  const auto plane = PlaneFactory::fromThreePoints({1, 0, 1}, {3, 0, 1}, {1, 4, 1});
  ASSERT_TRUE(plane);
  EXPECT_EQ(plane->normal(), Vector3d(0, 0, 1));
  EXPECT_FALSE(PlaneFactory::fromThreePoints({0, 0, 0}, {1, 1e-7, 0}, {2, 0, 0}));
  EXPECT_FALSE(PlaneFactory::fromThreePoints({0, 0, 0}, {0, 0, 0}, {2, 0, 0}));
  EXPECT_FALSE(PlaneFactory::fromThreePoints({0, 0, 0}, {0, NAN, 0}, {2, 0, 0}));
}

TEST(StraightLine, MeetsAnotherOnceUnlessParallel) {
  const StraightLine diagonal(Point2d(0, 0), Point2d(2, 2));
  EXPECT_EQ(diagonal.intersectionPoint({{5, 0}, Vector2d(0, -3)}), Point2d(5, 5));
  EXPECT_FALSE(diagonal.intersectionPoint({{5, 0}, Vector2d(-1, -1)}));
  EXPECT_FALSE(diagonal.intersectionPoint({{5, 0}, Vector2d()}));
}

TEST(Polygon, KnowsInsideEdgeAndOutside) {
  const Polygon2d notched({{0, 0}, {4, 0}, {4, 4}, {2, 2}, {0, 4}});
  EXPECT_EQ(notched.inclusion({1, 2}), Inclusion::inside);
  EXPECT_EQ(notched.inclusion({1, 1}), Inclusion::inside);
  EXPECT_EQ(notched.inclusion({2, 3}), Inclusion::outside);
  EXPECT_EQ(notched.inclusion({-1, 0}), Inclusion::outside);
  EXPECT_EQ(notched.inclusion({-1, 4}), Inclusion::outside);
  EXPECT_EQ(notched.inclusion({-1, 2}), Inclusion::outside);  // the ray touches the notch
  EXPECT_EQ(notched.inclusion({2, 1e-9}), Inclusion::onEdge);
  EXPECT_EQ(notched.inclusion({3, 3}), Inclusion::onEdge);
  EXPECT_EQ(notched.inclusion({NAN, 1}), Inclusion::outside);
  EXPECT_EQ(Polygon2d().inclusion({0, 0}), Inclusion::outside);
  EXPECT_DOUBLE_EQ(notched.signedArea(), 12);
}

}  // namespace
}  // namespace qor::math
