#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/Geometry/FcEllipse.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Items.h"
#include "Tests/Qor/Math/RandomGeometry.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometry {
namespace {

using geometricmodel::FcCartesianPointList2D;
using namespace math;
using std::numbers::pi;
using test::ExpectAsserts;

std::shared_ptr<FcEllipse> ellipse(double a, double b) {
  return test::make<FcEllipse>({{"SemiAxis1", a}, {"SemiAxis2", b}});
}

std::shared_ptr<FcIndexedPolyCurve> arcs() {
  auto result = std::make_shared<FcIndexedPolyCurve>();
  result->startAt({0, 0});
  result->lineTo({3, 0});
  result->arcTo({1, 1}, 1, true);
  return result;
}

TEST(Transform, MovesACurveLikeItsPoints) {
  RandomGeometry random;
  for (int i = 0; i < 50; ++i) {
    const double scale = i % 2 ? 1 : random.number(0.5, 2);
    const Matrix matrix = Matrix::createScale(scale, scale, scale) * random.frame(1e3);
    const std::shared_ptr<FcCurve> curves[] = {
        circle(2),
        ellipse(3, 1),
        line({1, 2, 3}, {0, 3, 4}),
        arcs(),
        polyline(Points2d{{0, 0}, {1, 0}, {1, 1}}),
        polyline(Points3d{{0, 0, 1}, {1, 0, 2}, {1, 1, 5}}, true)};
    for (const auto& curve : curves) {
      auto expected = curve->curveGet(params, {}, {}, false);
      for (Point3d& point : expected) point = point * matrix;
      curve->transform(matrix);
      EXPECT_LT(deviation(curve->curveGet(params, {}, {}, false), expected), 1e-9)
          << curve->ifcName();
    }
  }
}

TEST(Transform, KeepsTheDimensionThatSuffices) {
  const auto point = makePoint(Point3d(1, 0, 0));
  point->transform(Matrix::createZRotate(pi / 2));
  EXPECT_EQ(point->dimension(), 2u);
  point->transform(Matrix::createTranslation({0, 0, 1}));
  EXPECT_EQ(point->dimension(), 3u);

  FcVector vector;
  vector.setVector({3, 4, 0}, 2);
  vector.transform(Matrix::createScale(2, 2, 2));
  EXPECT_EQ(vector.Orientation()->dimension(), 2u);
  EXPECT_EQ(vector.Magnitude(), 10.0);
  vector.transform(Matrix::createXRotate(0.5));
  EXPECT_EQ(vector.Orientation()->dimension(), 3u);

  const auto flat = polyline(Points2d{{0, 0}, {1, 0}, {1, 1}}, true);
  flat->transform(Matrix::createTranslation({1, 0, 0}));
  EXPECT_TRUE(flat->is2d());
  EXPECT_EQ(flat->Points().front()->point2d(), Point2d(1, 0));  // once, though it comes twice
  flat->transform(Matrix::createTranslation({0, 0, 1}));
  EXPECT_FALSE(flat->is2d());

  const auto curve = arcs();
  curve->transform(Matrix::createZRotate(1));
  EXPECT_TRUE(curve->is2d());
  curve->transform(Matrix::createXRotate(1));
  EXPECT_FALSE(curve->is2d());
}

TEST(Transform, RefusesWhatACurveCannotBecomeAndScalesAxesApart) {
  const auto round = circle(2);
  const auto oval = ellipse(2, 1);
  const auto broken = polyline(Points2d{{0, 0}, {1, 0}});
  broken->pushBackPoints(nullptr);
  FcCartesianPointList2D list;
  list.setPoints({{1, 2}});
  const ExpectAsserts expected(
      {"transformation is not purely 2d, may lose information when applying it",
       "Non uniform scale", "Must fixed implementation if mirror should be allowed",
       "There is a non-existent point in this Polyline"});
  round->transform(Matrix::createScale(1, 2, 1));
  oval->transform(Matrix::createScale(1, -1, 1));
  broken->transform(Matrix::createTranslation({1, 0, 0}));
  list.transform(Matrix::createTranslation({1, 0, 7}));
  EXPECT_EQ(list.point2d(0), Point2d(2, 2));
  EXPECT_EQ(round->Radius(), 2.0);
  EXPECT_FALSE(oval->Position().isSet());
  oval->transform(Matrix::createScale(3, 5, 1));
  EXPECT_EQ(oval->SemiAxis1(), 6.0);
  EXPECT_EQ(oval->SemiAxis2(), 5.0);
  EXPECT_EQ(broken->Points()[0]->point2d(), Point2d(0, 0));
}

TEST(Transform, KeepsThePositionOfAPlaneRightHanded) {
  FcPlane plane;
  {
    const ExpectAsserts expected(
        {"Position() of plane is not set. Will assume standard coordinate system now."});
    plane.transform(Matrix::createTranslation({1, 2, 3}));
  }
  EXPECT_EQ(plane.Position()->placementGet(), Matrix::createTranslation({1, 2, 3}));
  plane.transform(Matrix::createScale(1, -1, 1));
  EXPECT_EQ(plane.Position()->placementGet(), Matrix({1, -2, 3}, {-1, 0, 0}, {0, 0, 1}));
  FcPlane untouched;
  untouched.transform(Matrix());
  EXPECT_EQ(untouched.Position(), nullptr);
}

}  // namespace
}  // namespace qor::fc::resource::geometry
