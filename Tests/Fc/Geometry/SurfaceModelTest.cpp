#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Resource/GeometricModel/FcAdvancedBrepWithVoids.h"
#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoids.h"
#include "Fc/Resource/GeometricModel/FcGeometricCurveSet.h"
#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"
#include "Fc/Resource/Geometry/FcCurveBoundedPlane.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/PresentationDefinition/FcAnnotationFillArea.h"
#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"
#include "Fc/Resource/Topology/FcEdgeLoop.h"
#include "Tests/Fc/Geometry/Faces.h"
#include "Tests/Fc/Geometry/Items.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using namespace geometry;
using namespace math;
using test::DrawRecorder;
using test::ExpectAsserts;
using test::make;
using testing::ElementsAre;
using testing::SizeIs;
using namespace topology;

const Matrix shift = Matrix::createTranslation({10, 0, 0});

/// A face without a polygon.
std::shared_ptr<FcFace> curvedFace() { return face({bound(make<FcEdgeLoop>())}); }

template <class Brep>
std::shared_ptr<Brep> brepWithVoid(const Tetrahedron& outer, const Tetrahedron& inner) {
  return make<Brep>({{"Outer", outer.shell}, {"Voids", std::vector{inner.shell}}});
}

TEST(Brep, DrawsItsOuterShellAlone) {
  const Tetrahedron outer, inner;
  const std::pair<std::shared_ptr<FcManifoldSolidBrep>, const char*> cases[] = {
      {brepWithVoid<FcFacetedBrepWithVoids>(outer, inner),
       "Not implemented for FcFacetedBrepWithVoids, voids will not be drawn"},
      {brepWithVoid<FcAdvancedBrepWithVoids>(outer, inner),
       "Not implemented for FcAdvancedBrepWithVoids, voids will not be drawn"}};
  for (const auto& [brep, message] : cases) {
    const ExpectAsserts expected({message});
    DrawRecorder target;
    target.draw(*brep);
    EXPECT_THAT(target.items, ElementsAre(outer.shell.get()));
    EXPECT_THAT(target.polygonalSets, SizeIs(1));
  }
  const ExpectAsserts expected({"Outer should exist", "Outer should exist"});
  DrawRecorder target;
  const auto hollow = make<FcFacetedBrep>();
  target.draw(*hollow);
  hollow->transform(shift);
  EXPECT_FALSE(hollow->boundingBox(params));
}

TEST(Transform, MovesEachSharedPointOnce) {
  const Tetrahedron outer, inner;
  brepWithVoid<FcFacetedBrepWithVoids>(outer, inner)->transform(shift);
  EXPECT_EQ(outer.p[0]->point(), Point3d(10, 0, 0));
  EXPECT_EQ(inner.p[1]->point(), Point3d(11, 0, 0));

  auto model = make<FcShellBasedSurfaceModel>();
  model->setSbsmBoundary(
      {FcShell(outer.shell), FcShell(shell({polygon({outer.p[0], outer.p[1], outer.p[2]})}))});
  model->transform(shift);
  EXPECT_EQ(*model->boundingBox(params), Extent({20, 0, 0}, {21, 1, 1}));
  model->transform(shift);
  EXPECT_EQ(outer.p[0]->point(), Point3d(30, 0, 0)) << "a second call moves them again";
}

TEST(ShellBasedSurfaceModel, IsOneSetUnlessAShellIsCurved) {
  const Tetrahedron a;
  auto model = make<FcShellBasedSurfaceModel>();
  model->setSbsmBoundary({FcShell(a.shell), FcShell(shell({polygon({a.p[0], a.p[1], a.p[2]})}))});
  DrawRecorder target;
  target.draw(*model);
  ASSERT_THAT(target.polygonalSets, SizeIs(1));
  EXPECT_THAT(target.polygonalSets[0].what.faces, SizeIs(5));
  EXPECT_THAT(target.polygonalSets[0].what.coordinates, SizeIs(4));

  model->setSbsmBoundary({FcShell(a.shell), FcShell(shell({curvedFace(), curvedFace()}))});
  const ExpectAsserts expected({"No FcComplexGeometryProcessorInterface implementation set."});
  DrawRecorder other;
  other.draw(*model);
  EXPECT_THAT(other.items, SizeIs(2));
  EXPECT_THAT(other.polygonalSets, SizeIs(1));
}

TEST(FaceBasedSurfaceModel, DrawsEachSetAndTellsOfMissingOnes) {
  const Tetrahedron a;
  auto model = make<FcFaceBasedSurfaceModel>();
  model->setFbsmFaces({a.shell, nullptr});
  const ExpectAsserts expected({"Expect to have a valid connected face set"});
  DrawRecorder target;
  target.draw(*model);
  EXPECT_THAT(target.items, ElementsAre(a.shell.get()));
}

std::shared_ptr<geometry::FcPolyline> square() {
  return polyline(Points2d{{0, 0}, {4, 0}, {4, 4}, {0, 4}}, true);
}
std::shared_ptr<geometry::FcPolyline> hole() {
  return polyline(Points2d{{1, 1}, {1, 2}, {2, 1}}, true);
}

TEST(GeometricSet, DoesAllForEachElement) {
  const auto line = polyline(Points2d{{0, 0}, {2, 0}, {0, 2}}, true);
  const auto at = point(5, 5, 5);
  auto set = make<FcGeometricCurveSet>();
  set->setElements({FcGeometricSetSelect(line), FcGeometricSetSelect(),
                    FcGeometricSetSelect(std::shared_ptr<geometry::FcPoint>(at))});
  DrawRecorder target;
  target.draw(*set);
  EXPECT_THAT(target.items, ElementsAre(line.get(), at.get()));
  EXPECT_EQ(*set->boundingBox(params), Extent({0, 0, 0}, {5, 5, 5}));
  set->transform(shift);
  EXPECT_EQ(*set->boundingBox(params), Extent({10, 0, 0}, {15, 5, 5}));
}

TEST(CurveBoundedPlane, LiesInItsPlane) {
  auto plane = make<geometry::FcPlane>();
  auto surface = make<geometry::FcCurveBoundedPlane>();
  DrawRecorder target;
  const ExpectAsserts expected({"Basis surface not set", "Outer boundary not set",
                                "Invalid FcCurveBoundedPlane. Missing surface position."});
  target.draw(*surface);
  surface->setBasisSurface(plane);
  target.draw(*surface);
  surface->setOuterBoundary(square());
  target.draw(*surface);
  EXPECT_TRUE(target.empty());

  surface->setInnerBoundaries({hole(), nullptr});
  plane->setPosition(makePlacement(Matrix({0, 0, 7}, {0, 1, 0}, {1, 0, 0})));
  target.draw(*surface);
  ASSERT_THAT(target.polygons, SizeIs(1));
  ASSERT_THAT(target.polygons[0].what, ElementsAre(SizeIs(4), SizeIs(3)));
  EXPECT_TRUE(target.polygons[0].what[0][2].isNear({0, 4, 11}));
  EXPECT_EQ(surface->boundingBox(params)->maximum().z, 11);
}

TEST(AnnotationFillArea, IsAPolygonWithHoles) {
  auto area = make<presentationdefinition::FcAnnotationFillArea>();
  DrawRecorder target;
  const ExpectAsserts expected({"Outer boundary not set"});
  target.draw(*area);
  area->setOuterBoundary(square());
  area->setInnerBoundaries({hole()});
  target.draw(*area);
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what, ElementsAre(SizeIs(4), SizeIs(3)));
  area->transform(shift);
  EXPECT_EQ(*area->boundingBox(params), Extent({10, 0, 0}, {14, 4, 0}));
}

TEST(TextLiteral, StandsAtItsPlacement) {
  const auto text = make<presentationdefinition::FcTextLiteral>(
      {{"Literal", "Küche"}, {"Placement", makePlacement(shift)}});
  text->transform(shift);
  DrawRecorder target;
  target.draw(*text);
  ASSERT_THAT(target.texts, SizeIs(1));
  EXPECT_EQ(target.texts[0].what, "Küche");
  EXPECT_TRUE(target.texts[0].frame.origin().isNear({20, 0, 0}));
  EXPECT_EQ(target.transformationGet(), Matrix());
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
