#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcBoundingBox.h"
#include "Fc/Resource/GeometricModel/FcCsgSolid.h"
#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/GeometricModel/FcSphere.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using namespace math;
using std::numbers::pi;
using test::DrawRecorder;
using test::ExpectAsserts;
using test::isClosedSolidOfVolume;
using test::make;
using test::SolidMesh;

const FcParams params(math::CurveDiscretization(1e-3, 24, 24));

/// A quarter turn around X and a shift.
const Matrix placed = Matrix::createXRotate(pi / 2) * Matrix::createTranslation({10, 20, 30});

std::shared_ptr<FcBlock> block(double x, double y, double z) {
  return make<FcBlock>({{"XLength", x}, {"YLength", y}, {"ZLength", z}});
}
std::shared_ptr<FcRectangularPyramid> pyramid(double x, double y, double height) {
  return make<FcRectangularPyramid>({{"XLength", x}, {"YLength", y}, {"Height", height}});
}
std::shared_ptr<FcRightCircularCone> cone(double radius, double height) {
  return make<FcRightCircularCone>({{"BottomRadius", radius}, {"Height", height}});
}
std::shared_ptr<FcRightCircularCylinder> cylinder(double radius, double height) {
  return make<FcRightCircularCylinder>({{"Radius", radius}, {"Height", height}});
}
std::shared_ptr<FcSphere> sphere(double radius) { return make<FcSphere>({{"Radius", radius}}); }

/// All that the item draws, as one mesh in the frame around it.
SolidMesh meshOf(const geometry::FcRepresentationItem& item) {
  DrawRecorder target;
  target.draw(item);
  EXPECT_EQ(target.transformationGet(), Matrix()) << "the frame is given back";
  SolidMesh mesh;
  for (const auto& set : target.polygonalSets) mesh.add(set.what, set.frame);
  for (const auto& polygon : target.polygons) {
    EXPECT_EQ(polygon.frame, Matrix());
    mesh.addPolygon(polygon.what);
  }
  for (const auto& set : target.triangulatedSets)
    for (const auto& triangle : set.what.triangles) {
      const auto corner = [&](std::size_t i) {
        return set.what.coordinates()[triangle[i]] * set.frame;
      };
      mesh.addTriangle(corner(0), corner(1), corner(2));
    }
  return mesh;
}

struct Case {
  const char* name;
  std::shared_ptr<FcCsgPrimitive3D> primitive;
  double volume;         ///< of what the circles of 24 segments enclose
  double relativeError;  ///< beyond that
  Extent box;
};

std::vector<Case> primitives() {
  const double circle = 12 * std::sin(pi / 12);  // the area of 24 segments of radius 1
  return {{"block", block(2, 3, 4), 24, 1e-12, {{0, 0, 0}, {2, 3, 4}}},
          {"pyramid", pyramid(2, 3, 4), 8, 1e-12, {{0, 0, 0}, {2, 3, 4}}},
          {"cone", cone(2, 6), circle * 4 * 2, 1e-12, {{-2, -2, 0}, {2, 2, 6}}},
          {"cylinder", cylinder(2, 5), circle * 4 * 5, 1e-12, {{-2, -2, 0}, {2, 2, 5}}},
          {"sphere", sphere(2), pi * 4 / 3 * 8, 0.03, {{-2, -2, -2}, {2, 2, 2}}}};
}

TEST(Primitive, IsAClosedBodyOfItsVolumeInItsBoxWhereverItStands) {
  for (const Case& c : primitives()) {
    SCOPED_TRACE(c.name);
    EXPECT_TRUE(isClosedSolidOfVolume(meshOf(*c.primitive), c.volume, c.relativeError));
    EXPECT_EQ(*c.primitive->boundingBox(params), c.box);
    const math::Vector3d shift(10, 20, 30);
    c.primitive->setPosition(geometry::makePlacement(Matrix::createTranslation(shift)));
    EXPECT_EQ(*c.primitive->boundingBox(params),
              Extent(c.box.minimum() + shift, c.box.maximum() + shift));
    c.primitive->setPosition(geometry::makePlacement(placed));
    EXPECT_TRUE(isClosedSolidOfVolume(meshOf(*c.primitive), c.volume, c.relativeError));
  }
}

TEST(Primitive, IsDrawnInTheFormThatSuitsIt) {
  DrawRecorder target;
  target.draw(*block(1, 2, 3));
  const auto& box = target.polygonalSets.at(0).what;
  EXPECT_EQ(box.coordinates[6], Point3d(1, 2, 3));
  EXPECT_EQ(box.faces[0].outer, (std::vector<std::uint32_t>{0, 3, 2, 1}));
  EXPECT_TRUE(box.hardEdges);

  target.draw(*cone(1, 2));
  EXPECT_EQ(target.polygons.at(0).what.at(0).size(), 24u);
  EXPECT_EQ(target.triangulatedSets.at(0).what.triangles.size(), 24u);

  const auto pipe = cylinder(1, 4)->buildFaceSet(params);
  ASSERT_TRUE(pipe && pipe->textureCoordinates);
  ASSERT_EQ(pipe->textureCoordinates->size(), pipe->coordinates.size());
  for (std::size_t i = 0; i < pipe->coordinates.size(); ++i)  // an image goes around it
    EXPECT_FLOAT_EQ((*pipe->textureCoordinates)[i][1],
                    static_cast<float>(pipe->coordinates[i].z / 4));

  EXPECT_TRUE(sphere(0)->getFaceSet(params.curveDiscretization()).triangles.empty());
  EXPECT_TRUE(sphere(-1)->getFaceSet(params.curveDiscretization()).coordinates().empty());
  const auto ball = sphere(2)->getFaceSet(params.curveDiscretization());
  EXPECT_EQ(ball.triangles.size(), 2u * 24 * 23);
  ASSERT_TRUE(ball.normals());
  EXPECT_NEAR((ball.coordinates()[77] - Point3d() - (*ball.normals())[77] * 2).length(), 0, 1e-12);
}

TEST(PrimitiveTransform, MovesTheBodyAndScalesWhatCanScale) {
  const Matrix scaled = Matrix::createScale(2, 2, 2) * placed;
  const struct {
    const char* name;
    std::shared_ptr<FcCsgPrimitive3D> primitive;
    Matrix matrix;
    double factor;  ///< of the volume
    std::vector<test::ExpectedAssert> asserts;
  } cases[] = {
      {"moved block", block(1, 2, 3), placed, 1, {}},
      {"block keeps its size", block(1, 2, 3), scaled, 1, {}},
      {"moved cone", cone(1, 2), placed, 1, {}},
      {"scaled cone", cone(1, 2), scaled, 8, {}},
      {"scaled sphere", sphere(1), scaled, 8, {}},
      {"cylinder keeps its size",
       cylinder(1, 2),
       placed,
       1,
       {"Position() of FcCsgPrimitive3D is not given. Will assume standard coordinate system "
        "now"}},
      {"squeezed sphere", sphere(1), Matrix::createScale(1, 2, 1), 1, {"Non uniform scale"}},
      {"squeezed cone",
       cone(1, 2),
       Matrix::createScale(1, 2, 1),
       1,
       {"Can only have uniform scale in 2d plane"}},
      {"stretched cone", cone(1, 2), Matrix::createScale(1, 1, 3), 3, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const double before = meshOf(*c.primitive).volume();
    {
      const ExpectAsserts expected(c.asserts);
      c.primitive->transform(c.matrix);
    }
    EXPECT_TRUE(isClosedSolidOfVolume(meshOf(*c.primitive), before * c.factor, 1e-9));
  }
}

TEST(PrimitiveTransform, PutsTheBodyWhereTheMatrixSaysAndTurnsACylinderUnderAMirror) {
  const auto moved = block(1, 2, 3);
  moved->transform(placed);
  EXPECT_TRUE(moved->Position()->placementGet().x().isNear(placed.x()));
  EXPECT_TRUE(moved->Position()->placementGet().origin().isNear({10, 20, 30}));

  const auto mirrored = cylinder(1, 2);
  mirrored->setPosition(geometry::makePlacement(Matrix()));
  const ExpectAsserts noAsserts;
  mirrored->transform(Matrix({-1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
  EXPECT_FALSE(mirrored->Position()->placementGet().isMirror());
  EXPECT_EQ(*mirrored->boundingBox(params), Extent({4, -1, 0}, {6, 1, 2}));
}

TEST(CsgSolid, DoesWhatItsRootDoes) {
  auto solid = make<FcCsgSolid>();
  DrawRecorder target;
  target.draw(*solid);
  solid->transform(placed);
  EXPECT_TRUE(target.empty());
  EXPECT_FALSE(solid->boundingBox(params));

  const auto root = block(1, 2, 3);
  solid->setTreeRootExpression(FcCsgSelect(root));
  target.draw(*solid);
  EXPECT_EQ(target.items, std::vector<const FcBase*>{root.get()});
  EXPECT_EQ(*solid->boundingBox(params), Extent({0, 0, 0}, {1, 2, 3}));
  solid->transform(Matrix::createTranslation({1, 0, 0}));
  EXPECT_EQ(*solid->boundingBox(params), Extent({1, 0, 0}, {2, 2, 3}));
}

TEST(BoundingBox, IsSetAnewAroundItsMovedCorners) {
  EXPECT_FALSE(make<FcBoundingBox>()->boundingBox(params));
  const auto corner = geometry::makePoint(Point3d(1, 0, 0));
  const auto box = make<FcBoundingBox>({{"Corner", corner}, {"XDim", 1}, {"YDim", 2}, {"ZDim", 3}});
  box->transform(Matrix({0, 1, 0}, {-1, 0, 0}, {0, 0, 1}, {0, 0, 5}));
  EXPECT_EQ(*box->boundingBox(params), Extent({-2, 1, 5}, {0, 2, 8}));
  EXPECT_EQ(corner->point(), Point3d(1, 0, 0)) << "others may share it";
  DrawRecorder target;
  target.draw(*box);
  EXPECT_TRUE(target.empty());
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
