#include <gtest/gtest.h>

#include <cmath>

#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2DnonUniform.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3DnonUniform.h"
#include "Items.h"
#include "Tests/Qor/Math/RandomGeometry.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc::resource::geometry {
namespace {

using namespace math;
using measure::FcReal;
using test::ExpectAsserts;
using Uniform2D = FcCartesianTransformationOperator2D;
using NonUniform2D = FcCartesianTransformationOperator2DnonUniform;
using Uniform3D = FcCartesianTransformationOperator3D;
using NonUniform3D = FcCartesianTransformationOperator3DnonUniform;
using OptionalScale = std::optional<double>;

TEST(TransformationOperator, ScalesBeforeItTurns) {
  Uniform3D uniform;
  uniform.setAxis1(makeDirection(Vector3d(0, 2, 0)));
  uniform.setLocalOrigin(makePoint(Point3d(1, 2, 3)));
  EXPECT_EQ(uniform.getTransformation(), Matrix({1, 2, 3}, {0, 1, 0}, {0, 0, 1}));
  uniform.setScale(FcReal(2));
  EXPECT_EQ(Point3d(1, 1, 1) * uniform.getTransformation(), Point3d(-1, 4, 5));
}

TEST(TransformationOperator, CompletesItsAxes) {
  Uniform3D op;
  EXPECT_EQ(op.getTransformation(), Matrix());
  op.setAxis3(makeDirection(Vector3d(1, 0, 0)));  // the X axis has to go elsewhere
  EXPECT_EQ(op.getTransformation(), Matrix({}, {0, 1, 0}, {1, 0, 0}));
  op.setAxis1(makeDirection(Vector3d(1, 1, 0)));  // made perpendicular to the third axis
  EXPECT_EQ(op.getTransformation(), Matrix({}, {0, 1, 0}, {1, 0, 0}));
  op.setAxis2(makeDirection(Vector3d(0, 1, -1)));  // made perpendicular to the first: a mirror
  EXPECT_EQ(op.getTransformation(), Matrix({0, 1, 0}, {0, 0, -1}, {1, 0, 0}, {}));
}

TEST(TransformationOperator, ScalesTurnsMirrorsAndMovesAsItsAttributesSay) {
  RandomGeometry random;
  for (int i = 0; i < 300; ++i) {
    const Matrix frame = random.frame(100);
    const double hand = i % 2 ? -1 : 1;
    const Vector3d scales(random.number(0.1, 5), random.number(0.1, 5), random.number(0.1, 5));
    // Axes of any length; the first needn't be perpendicular to the third.
    const auto op = test::make<NonUniform3D>({{"Axis1", makeDirection(frame.x() * 3 + frame.z())},
                                              {"Axis2", makeDirection(frame.y() * (hand * 0.5))},
                                              {"Axis3", makeDirection(frame.z() * 2)},
                                              {"LocalOrigin", makePoint(frame.origin())},
                                              {"Scale", scales.x},
                                              {"Scale2", scales.y},
                                              {"Scale3", scales.z}});
    EXPECT_LT(deviation(op->getTransformation(),
                        Matrix(frame.x() * scales.x, frame.y() * (hand * scales.y),
                               frame.z() * scales.z, frame.origin())),
              1e-12);
  }
}

TEST(TransformationOperator, TakesMissingScalesFromTheFirst) {
  const struct {
    OptionalScale scale, scale2, scale3;
    Vector3d in2d, in3d;
    Vector2d planar;
  } cases[] = {{{}, {}, {}, {1, 1, 1}, {1, 1, 1}, {1, 1}},
               {2, {}, {}, {2, 2, 2}, {2, 2, 2}, {2, 2}},
               {{}, 3, {}, {1, 3, 1}, {1, 3, 1}, {1, 1}},
               {2, 3, {}, {2, 3, 2}, {2, 3, 2}, {2, 3}},
               {2, {}, 4, {2, 2, 2}, {2, 2, 4}, {2, 2}}};
  for (const auto& test : cases) {
    NonUniform2D planar;
    NonUniform3D spatial;
    if (test.scale) planar.setScale(FcReal(*test.scale));
    if (test.scale) spatial.setScale(FcReal(*test.scale));
    if (test.scale2) planar.setScale2(FcReal(*test.scale2));
    if (test.scale2) spatial.setScale2(FcReal(*test.scale2));
    if (test.scale3) spatial.setScale3(FcReal(*test.scale3));
    EXPECT_EQ(planar.getTransformation(),
              Matrix::createScale(test.in2d.x, test.in2d.y, test.in2d.z));
    EXPECT_EQ(spatial.getTransformation(),
              Matrix::createScale(test.in3d.x, test.in3d.y, test.in3d.z));
    EXPECT_EQ(planar.getTransformation2d(), Matrix2d::createScale(test.planar.x, test.planar.y));
  }
}

TEST(TransformationOperator, IsMadeFromAMatrixOfThePlane) {
  RandomGeometry random;
  for (int i = 0; i < 300; ++i) {
    const Matrix2d frame = Matrix2d::createRotate(random.angle()) *
                           Matrix2d::createTranslation(random.point2d(100) - Point2d());
    const double x = random.number(0.1, 5);
    for (const double y : {x, -x, random.number(0.1, 5)}) {
      const Matrix2d matrix = Matrix2d::createScale(x, y) * frame;
      const auto found = Uniform2D::createTransformation(matrix)->getTransformation2d();
      EXPECT_LT(deviation(found.toMatrix3d(), matrix.toMatrix3d()), 1e-13);
    }
  }
}

TEST(TransformationOperator, LeavesOutWhatIsTheIdentity) {
  const auto identity = Uniform2D::createTransformation(Matrix2d());
  EXPECT_EQ(identity->Axis1(), nullptr);
  EXPECT_EQ(identity->Axis2(), nullptr);
  EXPECT_FALSE(identity->Scale());
  EXPECT_EQ(identity->LocalOrigin()->dimension(), 2u);
  const auto turned = Uniform2D::createTransformation(Matrix2d::createRotate(1));
  EXPECT_FALSE(turned->Scale());
  EXPECT_NE(turned->Axis1(), nullptr);
  EXPECT_NE(turned->Axis2(), nullptr);
}

TEST(TransformationOperator, MovesAndTakesTheScaleOfTheMatrix) {
  Uniform3D uniform;
  const auto origin = makePoint(Point3d(1, 0, 0));
  uniform.setLocalOrigin(origin);
  const Matrix turn = Matrix::createZRotate(0.5) * Matrix::createTranslation({1, 2, 3});
  uniform.transform(turn);
  EXPECT_FALSE(uniform.Scale());
  EXPECT_EQ(origin->point(), Point3d(1, 0, 0));  // others may share it
  EXPECT_LT(deviation(uniform.getTransformation(), Matrix::createTranslation({1, 0, 0}) * turn),
            1e-14);
  uniform.transform(Matrix::createScale(3, 3, 3));
  EXPECT_NEAR(*uniform.Scale(), 3, 1e-14);
  const ExpectAsserts expected(
      {"FcCartesianTransformationOperator3D can only be uniform. You can use "
       "FcCartesianTransformationOperator3DNonUniform"});
  uniform.transform(Matrix::createScale(1, 2, 1));
  NonUniform3D op;
  op.transform(Matrix::createScale(2, 3, 2));
  EXPECT_FALSE(op.Scale3());
  EXPECT_EQ(op.getTransformation(), Matrix::createScale(2, 3, 2));
}

}  // namespace
}  // namespace qor::fc::resource::geometry
