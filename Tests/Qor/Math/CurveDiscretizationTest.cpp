#include "Qor/Math/CurveDiscretization.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Qor/Math/Polygon.h"
#include "RandomGeometry.h"

namespace qor::math {
namespace {

using std::numbers::pi;

const CurveDiscretization millimetre(0.001, 8, 72);

TEST(CurveDiscretization, CutsACircleSoThatNoSegmentLeavesItByMoreThanTheChordValue) {
  const CurveDiscretization fine(0.001, 3, 100000);
  for (const double radius : {0.002, 0.01, 0.5, 1.0, 37.0, 1e4}) {
    const auto deviation = [&](std::size_t segments) {
      return 2 * radius * std::pow(std::sin(pi / static_cast<double>(segments) / 2), 2);
    };
    const auto segments = fine.numberOfCircleSegments(radius);
    EXPECT_LE(deviation(segments), 0.001 * (1 + 1e-9)) << radius;
    if (segments > 3) {
      EXPECT_GT(deviation(segments - 1), 0.001) << radius;
    }
  }
}

TEST(CurveDiscretization, KeepsItsLimits) {
  EXPECT_EQ(millimetre.numberOfCircleSegments(1e-9), 8u);
  EXPECT_EQ(millimetre.numberOfCircleSegments(1e9), 72u);
  for (const double radius : {0.0, -1.0, double(NAN), double(INFINITY)}) {
    EXPECT_EQ(millimetre.numberOfCircleSegments(radius), 0u);
    EXPECT_EQ(millimetre.numberOfArcSegments(radius, 1), 0u);
    EXPECT_TRUE(millimetre.discretizeCircle(Point2d(), radius).empty());
    EXPECT_TRUE(millimetre.discretizeCircularArc(Point2d(), radius, 0, 1).empty());
  }
  EXPECT_EQ(CurveDiscretization(0.001, 20, 6).numberOfCircleSegments(1), 6u);
  EXPECT_EQ(CurveDiscretization(0.001, 0, 0).numberOfCircleSegments(1), 3u);
  EXPECT_EQ(CurveDiscretization(0, 8, 72).numberOfCircleSegments(1), 72u);
  EXPECT_EQ(CurveDiscretization(NAN, 8, 72).numberOfCircleSegments(1), 72u);
  CurveDiscretization changed = millimetre;
  changed.setMinMaxSegmentsOfFullCircle(5, 10);
  EXPECT_EQ(changed.numberOfCircleSegments(1e9), 10u);
  EXPECT_EQ(changed.copy()->numberOfCircleSegments(1e-9), 5u);
}

TEST(CurveDiscretization, GivesAnArcItsPartOfTheCircle) {
  EXPECT_EQ(millimetre.numberOfArcSegments(1e9, pi / 2), 18u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1e9, -pi / 2), 18u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1e9, pi / 2 + 0.01), 19u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1e9, 1e-9), 1u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1e9, 2 * pi), 72u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1e9, 1e300), 72u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1, 0), 0u);
  EXPECT_EQ(millimetre.numberOfArcSegments(1, NAN), 0u);
}

TEST(CurveDiscretization, LaysCirclesCounterClockwiseAndOpen) {
  RandomGeometry random;
  for (int i = 0; i < 200; ++i) {
    const double radius = std::pow(10, random.number(-3, 4)), start = random.angle();
    const auto ring = millimetre.discretizeCircle(Point2d(), radius, start);
    ASSERT_EQ(ring.size(), millimetre.numberOfCircleSegments(radius));
    EXPECT_GT(Polygon2d(ring).signedArea(), 2 * radius * radius);
    EXPECT_LT(ring[0].distance(Point2d() + Vector2d(radius, 0).rotate(start)), radius * 1e-14);
    EXPECT_GT(ring.back().distance(ring[0]), radius * 0.05);
    for (const Point2d& point : ring) EXPECT_NEAR((point - Point2d()).length() / radius, 1, 1e-14);
  }
  const Matrix frame = random.frame(10);
  const auto ring = millimetre.discretizeCircle(frame, 2.0, 0);
  EXPECT_LT(ring[0].distance(frame.transform(Point2d(2, 0))), 1e-14);
}

TEST(CurveDiscretization, LaysArcsByAngles) {
  const auto arc = millimetre.discretizeCircularArc({1, 1}, 2, pi / 2, -pi);
  EXPECT_LT(arc.front().distance({1, 3}), 1e-15);
  EXPECT_LT(arc.back().distance({1, -1}), 1e-15);
  EXPECT_GT(arc[1].x, 1);  // clockwise
}

/// Three points of an arc somewhere in the plane.
struct ArcCase {
  double reach;
  double radius;
  double sweep;
};

TEST(CurveDiscretization, KeepsArcsThroughThreePointsOnTheirCircle) {
  RandomGeometry random;
  for (const ArcCase& test :
       {ArcCase{0, 1, 1.5}, ArcCase{10, 0.01, 6.2}, ArcCase{1e3, 1e4, 0.3}, ArcCase{1e5, 1e4, -2},
        ArcCase{1e6, 100, -5}, ArcCase{0, 1e4, 1e-3}}) {
    for (int i = 0; i < 100; ++i) {
      const Point2d center = random.point2d(test.reach);
      const double start = random.angle(), part = random.number(0.2, 0.8);
      const auto on = [&](double fraction) {
        return center + Vector2d(test.radius, 0).rotate(start + fraction * test.sweep);
      };
      const auto arc = millimetre.discretizeCircularArc(on(0), on(part), on(1));
      const auto segments = millimetre.numberOfArcSegments(test.radius, test.sweep);
      ASSERT_NEAR(double(arc.size()), double(segments) + 1, 1);
      EXPECT_EQ(arc.front(), on(0));  // to the bit
      EXPECT_EQ(arc.back(), on(1));
      // Coordinates far away have fewer digits left for the circle.
      const double tolerance = test.radius * 1e-9 + test.reach * 1e-12;
      for (std::size_t k = 0; k < arc.size(); ++k) {
        EXPECT_NEAR((arc[k] - center).length(), test.radius, tolerance);
        const double fraction = static_cast<double>(k) / static_cast<double>(arc.size() - 1);
        EXPECT_LT(arc[k].distance(on(fraction)), 100 * tolerance);
      }
    }
  }
}

TEST(CurveDiscretization, KeepsNearlyStraightArcsBetweenTheirEnds) {
  // A rise of a tenth of a nanometre over a metre: a circle of a million kilometres.
  const auto arc = CurveDiscretization(1e-15, 8, 10000000000000)
                       .discretizeCircularArc(Point2d(0, 0), Point2d(0.5, 1e-10), Point2d(1, 0));
  ASSERT_GT(arc.size(), 3u);
  for (std::size_t k = 1; k < arc.size(); ++k) {
    EXPECT_GT(arc[k].x, arc[k - 1].x);
    EXPECT_LE(arc[k].y, 1.0001e-10);
    EXPECT_GE(arc[k].y, 0);
  }
}

TEST(CurveDiscretization, LaysArcsInSpaceAsInTheirPlane) {
  RandomGeometry random;
  for (int i = 0; i < 300; ++i) {
    const Matrix frame = random.frame(1e3);
    const double radius = random.number(0.1, 50), sweep = random.number(0.1, 6);
    const auto on = [&](double angle) {
      return frame.transform(Point2d() + Vector2d(radius, 0).rotate(angle));
    };
    const auto arc = millimetre.discretizeCircularArc(on(0), on(sweep / 3), on(sweep));
    ASSERT_GE(arc.size(), 2u);
    EXPECT_EQ(arc.front(), on(0));
    EXPECT_EQ(arc.back(), on(sweep));
    for (std::size_t k = 0; k < arc.size(); ++k) {
      const double angle = sweep * static_cast<double>(k) / static_cast<double>(arc.size() - 1);
      EXPECT_LT(arc[k].distance(on(angle)), 1e-8);
    }
  }
}

TEST(CurveDiscretization, LaysNoArcThroughCollinearPoints) {
  const auto none = [](const Point2d& a, const Point2d& b, const Point2d& c) {
    const auto lift = [](const Point2d& p) { return Point3d(p.x, p.y, 1); };
    return millimetre.discretizeCircularArc(a, b, c).empty() &&
           millimetre.discretizeCircularArc(lift(a), lift(b), lift(c)).empty();
  };
  EXPECT_TRUE(none({0, 0}, {1, 1}, {2, 2}));
  EXPECT_TRUE(none({1e6, 0}, {1e6 + 0.1, 0.1}, {1e6 + 0.2, 0.2}));
  EXPECT_TRUE(none({0, 0}, {1, 0}, {0, 0}));
  EXPECT_TRUE(none({0, 0}, {0, 0}, {1, 0}));
  EXPECT_TRUE(none({0, 0}, {0, NAN}, {1, 0}));
  EXPECT_TRUE(none({0, 0}, {0, INFINITY}, {1, 0}));
  EXPECT_FALSE(none({0, 0}, {1, 1e-6}, {2, 0}));
}

}  // namespace
}  // namespace qor::math
