#include <gtest/gtest.h>

#include <numbers>

#include "Fc/Resource/Profile/CenterLineRing.h"
#include "Fc/Resource/Profile/RectangleContour.h"
#include "Qor/Math/Polygon.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::profile {
namespace {

using math::Matrix2d;
using math::Point2d;
using math::Polygon2d;
using std::numbers::pi;

const math::CurveDiscretization kSixteen(1, 16, 16);

TEST(CenterLineRing, IsABandOfTheOffsetToEitherSide) {
  const auto straight = centerLineRing({{0, 0}, {0, 3}}, 1);
  EXPECT_EQ(straight, (std::vector<Point2d>{{1, 0}, {1, 3}, {-1, 3}, {-1, 0}}));
  // What a right angle takes on its inner side it gives on its outer one.
  const auto angle = centerLineRing({{0, 0}, {3, 0}, {3, 0}, {3, 4}}, 0.5);
  EXPECT_EQ(angle.size(), 6u);
  EXPECT_NEAR(Polygon2d(angle).signedArea(), 7, 1e-12);
}

TEST(CenterLineRing, StaysFiniteWhereTheLineFoldsBackAndIsEmptyForAPoint) {
  for (const Point2d& point : centerLineRing({{0, 0}, {3, 0}, {1, 0}}, 0.5))
    EXPECT_LE(point.distance({0, 0}), 4);
  EXPECT_TRUE(centerLineRing({{1, 1}, {1, 1}}, 0.5).empty());
}

TEST(RoundedRectangle, IsSoftInsideItsArcsAlone) {
  const auto contour = contourWithRoundedCorners(Matrix2d::createRotate(0.3), 2, 1, 0.5,
                                                 ContourOrientation::counterClockwise, kSixteen);
  ASSERT_EQ(contour.points.size(), 4 * 5u);
  for (std::size_t i = 0; i < contour.flags.size(); ++i)
    EXPECT_EQ(contour.flags[i], i % 5 != 0 && i % 5 != 4) << i;
}

TEST(RoundedRectangle, RunsAsAskedFromASharpCornerToACircle) {
  const test::ExpectAsserts none;
  const double arcs = 16 / 2.0 * std::sin(2 * pi / 16);  // area of the 16-gon of radius 1
  for (const double radius : {0.1, 0.5, 1.0})
    for (const double xHalf : {1.0, 2.0})
      for (const auto orientation :
           {ContourOrientation::clockwise, ContourOrientation::counterClockwise}) {
        const auto contour = contourWithRoundedCorners(Matrix2d({5, 6}, {0, 1}), xHalf, 1, radius,
                                                       orientation, kSixteen);
        const double area = 4 * xHalf - (4 - arcs) * radius * radius;
        EXPECT_NEAR(Polygon2d(contour.points).signedArea(),
                    orientation == ContourOrientation::clockwise ? -area : area, 1e-9);
        EXPECT_EQ(contour.points.size(), contour.flags.size());
      }
}

TEST(RoundedRectangle, TellsARadiusThatDoesNotFit) {
  const test::ExpectAsserts expected(
      {"Assertion failed: Expect only to be called if roundingRadius <= yDimHalf",
       "Assertion failed: Expect only to be called if roundingRadius > 0.0"});
  contourWithRoundedCorners({}, 2, 1, 1.5, ContourOrientation::counterClockwise, kSixteen);
  const auto sharp =
      contourWithRoundedCorners({}, 2, 1, 0, ContourOrientation::counterClockwise, kSixteen);
  EXPECT_EQ(sharp.points.size(), 4u);
}

}  // namespace
}  // namespace qor::fc::resource::profile
