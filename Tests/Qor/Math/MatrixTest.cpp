#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <thread>

#include "Qor/Math/Bounding.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/Matrix4x4.h"
#include "Qor/Math/MatrixFactory.h"
#include "RandomGeometry.h"

namespace qor::math {
namespace {

using _3d::Matrix4x4;
using std::numbers::pi;

TEST(Epsilon, BelongsToOneThreadAndComesBack) {
  {
    const EpsilonSave save;
    Epsilon::set(1e6, false);
    EXPECT_DOUBLE_EQ(Epsilon::current().length, 1e-3);
    EXPECT_DOUBLE_EQ(Epsilon::current().angle, 1e-6);
    double ofAnotherThread = 0;
    std::thread([&] { ofAnotherThread = Epsilon::current().length; }).join();
    EXPECT_DOUBLE_EQ(ofAnotherThread, 1e-6);
  }
  EXPECT_DOUBLE_EQ(Epsilon::current().length, 1e-6);
}

TEST(Matrix, IsTheIdentityWithinTheTolerances) {
  EXPECT_TRUE(Matrix({1, 1e-7, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, -1e-7}).isIdentity());
  EXPECT_FALSE(Matrix({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 1e-5}).isIdentity());
  EXPECT_TRUE(Matrix2d({1, 1e-7}, {0, 1}, {0, -1e-7}).isIdentity());
  EXPECT_FALSE(Matrix2d({1, 0}, {0, 1}, {0, 1e-5}).isIdentity());
}

TEST(Matrix, IsUndoneByItsInverse) {
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    // Up to 1e6 m from the origin, scaled and mirrored.
    const Matrix stretch = Matrix::createScale(random.number(0.5, 3), random.number(-3, -0.5), 2);
    const Matrix matrix = stretch * random.frame(1e6);
    const Point3d point = random.point(1e3);
    EXPECT_LT((point * matrix * matrix.inverse()).distance(point), 1e-8);
    EXPECT_LT((point * (matrix * matrix.inverse())).distance(point), 1e-8);
    EXPECT_TRUE(matrix.isMirror());
    EXPECT_FALSE((matrix * matrix).isMirror());
    const Matrix2d flat = (stretch * Matrix::createZRotate(random.angle())).toMatrix2d();
    const Point2d point2d = random.point2d(1e3);
    EXPECT_LT((point2d * flat * flat.inverse()).distance(point2d), 1e-10);
  }
}

TEST(Matrix, HasNoInverseWithoutThreeDirections) {
  EXPECT_EQ(Matrix({1, 0, 0}, {2, 0, 0}, {0, 0, 1}, {5, 5, 5}).inverse(), Matrix());
  EXPECT_EQ(Matrix({NAN, 0, 0}, {0, 1, 0}, {0, 0, 1}, {}).inverse(), Matrix());
  EXPECT_EQ(Matrix2d({1, 2}, {2, 4}, {5, 5}).inverse(), Matrix2d());
}

TEST(Matrix, LetsTheFirstFactorActFirst) {
  const Matrix quarterTurn({0, 0, 0}, {0, 1, 0}, {0, 0, 1});
  const Matrix shift = Matrix::createTranslation({10, 0, 0});
  EXPECT_EQ(Point3d(1, 2, 3) * (quarterTurn * shift), Point3d(8, 1, 3));
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    const Matrix a = random.frame(10), b = random.frame(10), c = random.frame(10);
    const Point3d point = random.point(10);
    EXPECT_LT((point * a * b * c).distance(point * (a * (b * c))), 1e-12);
    EXPECT_LT((point * (a * b) * c).distance(point * (a * (b * c))), 1e-12);
  }
}

TEST(Matrix, TurnsCounterClockwiseAroundItsAxis) {
  EXPECT_LT((Point3d(0, 1, 0) * Matrix::createXRotate(pi / 2)).distance({0, 0, 1}), 1e-15);
  EXPECT_LT((Point3d(0, 0, 1) * Matrix::createYRotate(pi / 2)).distance({1, 0, 0}), 1e-15);
  EXPECT_LT((Point3d(1, 0, 0) * Matrix::createZRotate(pi / 2)).distance({0, 1, 0}), 1e-15);
  EXPECT_EQ(Matrix::createRotate({}, 1), Matrix());
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    const Vector3d axis = random.direction(), along = random.direction();
    const double angle = random.angle();
    const Matrix turn = Matrix::createRotate(axis * 7, angle);
    EXPECT_LT((axis * turn - axis).length(), 1e-14);
    EXPECT_NEAR((along * turn).length(), 1, 1e-14);
    const Vector3d across = axis.cross(along).normalized();
    EXPECT_NEAR(across.cross(across * turn).dot(axis), std::sin(angle), 1e-13);
    EXPECT_TRUE(turn.isOrthogonal());
  }
}

TEST(Matrix, LeadsBetweenThePlaneAndSpace) {
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    const Matrix frame = random.frame(1e4);
    const std::vector<Point2d> points{random.point2d(10), random.point2d(10)};
    const auto back = frame.inverse().convert(frame.transform(points));
    EXPECT_LT(back[0].distance(points[0]), 1e-10);
    EXPECT_LT(back[1].distance(points[1]), 1e-10);
  }
  const Matrix2d flat({0, 2}, {-2, 0}, {3, 4});
  EXPECT_EQ(flat.toMatrix3d().toMatrix2d(), flat);
  EXPECT_TRUE(flat.toMatrix3d().isOnly2dTransformation());
  EXPECT_FALSE(Matrix::createXRotate(0.1).isOnly2dTransformation());
  EXPECT_FALSE(Matrix::createTranslation({0, 0, 1}).isOnly2dTransformation());
}

TEST(Matrix2d, IsScaledBeforeOrAfterItActs) {
  const Matrix2d turn = Matrix2d({0, 1}, {-1, 0}, {1, 1});
  EXPECT_EQ(Point2d(1, 0) * turn.scale(2, 3, MatrixMultiplyOrder::left), Point2d(1, 3));
  EXPECT_EQ(Point2d(1, 0) * turn.scale(2, 3, MatrixMultiplyOrder::right), Point2d(2, 6));
}

TEST(Matrix4x4, HoldsRowsAndUndoesItself) {
  RandomGeometry random;
  for (int i = 0; i < 100; ++i) {
    const Matrix frame = Matrix::createScale(1, 2, 3) * random.frame(1e3);
    const Matrix4x4 numbers(frame);
    EXPECT_EQ(numbers(3, 0), frame.origin().x);
    EXPECT_EQ(numbers.asTransposedMatrix()(0, 3), frame.origin().x);
    const Matrix4x4 inverse = numbers.asInversedMatrix(), expected(frame.inverse());
    for (std::size_t k = 0; k < 16; ++k)
      EXPECT_NEAR(inverse.numbers()[k], expected.numbers()[k], 1e-9);
  }
  EXPECT_EQ(Matrix4x4(Matrix::createScale(0, 1, 1)).asInversedMatrix(), Matrix4x4(Matrix()));
}

TEST(MatrixFactory, FindsTheFrameOfAPlanarRing) {
  RandomGeometry random;
  for (int i = 0; i < 1000; ++i) {
    const Matrix frame = random.frame(1e5);
    const auto ring = frame.transform({{0, 0}, {0, 0}, {3, 0}, {3, 2}, {1, 1}, {0, 2}});
    const auto found = _3d::MatrixFactory::fromPoints(ring);
    ASSERT_TRUE(found);
    EXPECT_GT(found->z().dot(frame.z()), 1 - 1e-9);  // they run counter-clockwise
    EXPECT_TRUE(found->isOrthogonal());
    const auto flat = found->inverse().convert(ring);
    const auto again = found->transform(flat);
    for (std::size_t k = 0; k < ring.size(); ++k) EXPECT_LT(again[k].distance(ring[k]), 1e-8);
  }
}

TEST(MatrixFactory, FindsNoFrameWherePointsSpanNoPlane) {
  const auto fromPoints = _3d::MatrixFactory::fromPoints;
  EXPECT_FALSE(fromPoints({}));
  EXPECT_FALSE(fromPoints({{0, 0, 0}, {1, 0, 0}}));
  EXPECT_FALSE(fromPoints({{0, 0, 0}, {1, 1e-7, 0}, {2, 0, 0}, {9, 0, 0}}));
  EXPECT_FALSE(fromPoints({{5, 5, 5}, {5, 5, 5}, {5, 5, 5}}));
  EXPECT_FALSE(fromPoints({{0, 0, 0}, {1, 0, 0}, {0, NAN, 0}}));
  EXPECT_FALSE(fromPoints({{0, 0, 0}, {1, 0, 0}, {0, INFINITY, 0}}));
  EXPECT_TRUE(fromPoints({{0, 0, 0}, {2, 2, 0}, {2, 0, 0}, {0, 2, 0}}));  // a figure of eight
}

TEST(Extent, GrowsMeetsAndMoves) {
  EXPECT_FALSE(Extent().isValid());
  EXPECT_FALSE(Extent().transformExtent(Matrix()).isValid());
  const Extent a({0, 0, 0}, {2, 2, 2}), b({3, 1, 1}, {1, 3, 5});
  EXPECT_EQ(a.intersectWith(b), Extent({1, 1, 1}, {2, 2, 2}));
  EXPECT_EQ(a.uniteWith(b), Extent({0, 0, 0}, {3, 3, 5}));
  EXPECT_EQ(a.uniteWith(Extent()), a);
  EXPECT_EQ(Extent().uniteWith(a), a);
  EXPECT_FALSE(a.intersectWith(Extent({2.5, 0, 0}, {3, 1, 1})).isValid());
  EXPECT_EQ(a.transformExtent(Matrix::createTranslation({1, 0, 0})), Extent({1, 0, 0}, {3, 2, 2}));
  const Extent turned = a.transformExtent(Matrix::createZRotate(pi / 4));
  EXPECT_NEAR(turned.size().x, 2 * std::sqrt(2), 1e-12);
  Extent skips = a;
  skips.include({NAN, 7, 0});
  EXPECT_EQ(skips, Extent({0, 0, 0}, {2, 7, 2}));
}

TEST(Bounding, TellsWhatIsOutside) {
  const _3d::Bounding box(Extent({0, 0, 0}, {1, 1, 1}));
  EXPECT_FALSE(box.isOutside(Extent({1, 1, 1}, {2, 2, 2})));
  EXPECT_TRUE(box.isOutside(Extent({0, 0, 1.001}, {1, 1, 2})));
  EXPECT_TRUE(box.isOutside(Extent()));
  EXPECT_TRUE(box.isOutside(Point3d(-0.1, 0.5, 0.5)));
  EXPECT_FALSE(box.isOutside(Point3d(0.5, 0.5, 0.5)));
  EXPECT_EQ(Extent::ofPoints(box.getCornerPoints()), box.extent());
}

TEST(Vector, TurnsCounterClockwiseAndMeasuresInnerAngles) {
  const Vector2d turned = Vector2d(1, 0).rotate(pi / 2);
  EXPECT_NEAR(turned.x, 0, 1e-15);
  EXPECT_NEAR(turned.y, 1, 1e-15);
  EXPECT_DOUBLE_EQ(Vector3d(1, 0, 0).innerAngle({0, -5, 0}), pi / 2);
  EXPECT_DOUBLE_EQ(Vector3d(1, 0, 0).innerAngle({-2, 0, 0}), pi);
  EXPECT_EQ(Vector3d(1e-9, 0, 0).normalized(), Vector3d(1e-9, 0, 0));
  EXPECT_DOUBLE_EQ(Vector2d(1, 0).counterClockwiseAngle({0, -2}), 1.5 * pi);
  EXPECT_EQ(Vector2d(1, 0).counterClockwiseAngle({3, 0}), 0);
}

TEST(Vector, KnowsParallelsAndRightAngles) {
  EXPECT_TRUE(Vector3d(1, 0, 0).isParallel({-5, 1e-7, 0}));
  EXPECT_FALSE(Vector3d(1, 0, 0).isParallel({-5, 1e-4, 0}));
  EXPECT_FALSE(Vector3d(1, 0, 0).isParallel({}));
  EXPECT_TRUE(Vector3d(1000, 0, 0).isPerpendicular({1e-4, 1000, 5}));
  EXPECT_FALSE(Vector3d(1, 0, 0).isPerpendicular({0.1, 1, 0}));
  EXPECT_FALSE(Vector3d(1, 0, 0).isPerpendicular({}));
}

TEST(Angle, IsReducedToOneTurn) {
  for (const double angle : {0.0, 1.0, 6.0})
    for (const int turns : {-2, -1, 0, 1, 5})
      EXPECT_NEAR(Angle(angle + turns * 2 * pi).calculateModulusTwoTimesPI(), angle, 1e-14);
  EXPECT_EQ(Angle(2 * pi).calculateModulusTwoTimesPI(), 0);
  EXPECT_EQ(Angle(-1e-20).calculateModulusTwoTimesPI(), 0);
}

}  // namespace
}  // namespace qor::math
