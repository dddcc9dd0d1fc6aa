#include <gtest/gtest.h>

#include <numbers>
#include <thread>

#include "Qor/Math/Matrix.h"

namespace qor::math {
namespace {

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

TEST(Matrix, LetsTheFirstFactorActFirst) {
  const Matrix quarterTurn({0, 0, 0}, {0, 1, 0}, {0, 0, 1});
  const Matrix shift({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {10, 0, 0});
  EXPECT_EQ(Point3d(1, 2, 3) * (quarterTurn * shift), Point3d(8, 1, 3));
  EXPECT_EQ(Point3d(1, 2, 3) * (shift * quarterTurn), Point3d(-2, 11, 3));
}

TEST(Matrix, KnowsMirrorsAndTheIdentity) {
  EXPECT_TRUE(Matrix().isIdentity());
  EXPECT_TRUE(Matrix({1, 1e-7, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, -1e-7}).isIdentity());
  EXPECT_FALSE(Matrix({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 1e-5}).isIdentity());
  EXPECT_FALSE(Matrix().isMirror());
  EXPECT_TRUE(Matrix({1, 0, 0}, {0, -1, 0}, {0, 0, 1}, {}).isMirror());
}

TEST(Vector, TurnsCounterClockwiseAndMeasuresInnerAngles) {
  const Vector2d turned = Vector2d(1, 0).rotate(pi / 2);
  EXPECT_NEAR(turned.x, 0, 1e-15);
  EXPECT_NEAR(turned.y, 1, 1e-15);
  EXPECT_DOUBLE_EQ(Vector3d(1, 0, 0).innerAngle({0, -5, 0}), pi / 2);
  EXPECT_DOUBLE_EQ(Vector3d(1, 0, 0).innerAngle({-2, 0, 0}), pi);
  EXPECT_EQ(Vector3d(1e-9, 0, 0).normalized(), Vector3d(1e-9, 0, 0));
}

}  // namespace
}  // namespace qor::math
