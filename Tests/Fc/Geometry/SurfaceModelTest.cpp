#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/FcParams.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcAdvancedBrepWithVoids.h"
#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoids.h"
#include "Fc/Resource/GeometricModel/FcGeometricCurveSet.h"
#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcCurveBoundedPlane.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/PresentationDefinition/FcAnnotationFillArea.h"
#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcEdgeCurve.h"
#include "Fc/Resource/Topology/FcEdgeLoop.h"
#include "Fc/Resource/Topology/FcFace.h"
#include "Fc/Resource/Topology/FcFaceOuterBound.h"
#include "Fc/Resource/Topology/FcOpenShell.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Fc/Resource/Topology/FcVertexPoint.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using geometry::FcCartesianPoint;
using geometry::makePoint;
using math::Extent;
using math::Matrix;
using math::Point2d;
using math::Point3d;
using test::DrawRecorder;
using test::ExpectAsserts;
using testing::ElementsAre;
using testing::SizeIs;
using namespace topology;

using Points = std::vector<std::shared_ptr<FcCartesianPoint>>;

const FcParams params(math::CurveDiscretization(1e-3, 24, 24));
const Matrix shift = Matrix::createTranslation({10, 0, 0});

std::shared_ptr<FcFace> polygon(Points corners) {
  auto loop = makeEntity<FcPolyLoop>();
  loop->setPolygon(std::move(corners));
  auto bound = makeEntity<FcFaceOuterBound>();
  bound->setBound(loop);
  bound->setOrientation(true);
  auto face = makeEntity<FcFace>();
  face->setBounds({bound});
  return face;
}

/// A face without a polygon.
std::shared_ptr<FcFace> curvedFace() {
  auto face = polygon({});
  face->Bounds()[0]->setBound(makeEntity<FcEdgeLoop>());
  return face;
}

template <class Shell>
std::shared_ptr<Shell> shell(std::vector<std::shared_ptr<FcFace>> faces) {
  auto result = makeEntity<Shell>();
  result->setCfsFaces(std::move(faces));
  return result;
}

/// A unit tetrahedron: four points, each in three faces.
struct Tetrahedron {
  Points p{makePoint(Point3d(0, 0, 0)), makePoint(Point3d(1, 0, 0)), makePoint(Point3d(0, 1, 0)),
           makePoint(Point3d(0, 0, 1))};
  std::shared_ptr<FcClosedShell> shell = geometricmodel::shell<FcClosedShell>(
      {polygon({p[0], p[2], p[1]}), polygon({p[0], p[1], p[3]}), polygon({p[1], p[2], p[3]}),
       polygon({p[2], p[0], p[3]})});
};

template <class Brep>
std::shared_ptr<Brep> brepWithVoid(const Tetrahedron& outer, const Tetrahedron& inner) {
  auto result = makeEntity<Brep>();
  result->setOuter(outer.shell);
  result->setVoids({inner.shell});
  return result;
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
  const auto hollow = makeEntity<FcFacetedBrep>();
  target.draw(*hollow);
  hollow->transform(shift);
  EXPECT_FALSE(hollow->boundingBox(params));
}

TEST(Transform, MovesEachSharedPointOnce) {
  const Tetrahedron outer, inner;
  brepWithVoid<FcFacetedBrepWithVoids>(outer, inner)->transform(shift);
  EXPECT_EQ(outer.p[0]->point(), Point3d(10, 0, 0));
  EXPECT_EQ(inner.p[1]->point(), Point3d(11, 0, 0));

  auto model = makeEntity<FcShellBasedSurfaceModel>();
  model->setSbsmBoundary(
      {FcShell(outer.shell),
       FcShell(shell<FcOpenShell>({polygon({outer.p[0], outer.p[1], outer.p[2]})}))});
  model->transform(shift);
  EXPECT_EQ(*model->boundingBox(params), Extent({20, 0, 0}, {21, 1, 1}));
  model->transform(shift);
  EXPECT_EQ(outer.p[0]->point(), Point3d(30, 0, 0)) << "a second call moves them again";
}

TEST(ShellBasedSurfaceModel, IsOneSetUnlessAShellIsCurved) {
  const Tetrahedron a;
  auto model = makeEntity<FcShellBasedSurfaceModel>();
  model->setSbsmBoundary(
      {FcShell(a.shell), FcShell(shell<FcOpenShell>({polygon({a.p[0], a.p[1], a.p[2]})}))});
  DrawRecorder target;
  target.draw(*model);
  ASSERT_THAT(target.polygonalSets, SizeIs(1));
  EXPECT_THAT(target.polygonalSets[0].what.faces, SizeIs(5));
  EXPECT_THAT(target.polygonalSets[0].what.coordinates, SizeIs(4));

  model->setSbsmBoundary(
      {FcShell(a.shell), FcShell(shell<FcOpenShell>({curvedFace(), curvedFace()}))});
  const ExpectAsserts expected({"No FcComplexGeometryProcessorInterface implementation set."});
  DrawRecorder other;
  other.draw(*model);
  EXPECT_THAT(other.items, SizeIs(2));
  EXPECT_THAT(other.polygonalSets, SizeIs(1));
}

TEST(FaceBasedSurfaceModel, DrawsEachSetAndTellsOfMissingOnes) {
  const Tetrahedron a;
  auto model = makeEntity<FcFaceBasedSurfaceModel>();
  model->setFbsmFaces({a.shell, nullptr});
  const ExpectAsserts expected({"Expect to have a valid connected face set"});
  DrawRecorder target;
  target.draw(*model);
  EXPECT_THAT(target.items, ElementsAre(a.shell.get()));
}

std::shared_ptr<geometry::FcPolyline> closedLine(std::vector<Point2d> corners) {
  Points points;
  for (const Point2d& corner : corners) points.push_back(makePoint(corner));
  points.push_back(points.front());
  auto line = makeEntity<geometry::FcPolyline>();
  line->setPoints(points);
  return line;
}

TEST(GeometricSet, DoesAllForEachElement) {
  const auto line = closedLine({{0, 0}, {2, 0}, {0, 2}});
  const auto at = makePoint(Point3d(5, 5, 5));
  auto set = makeEntity<FcGeometricCurveSet>();
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
  auto plane = makeEntity<geometry::FcPlane>();
  auto surface = makeEntity<geometry::FcCurveBoundedPlane>();
  DrawRecorder target;
  const ExpectAsserts expected({"Basis surface not set", "Outer boundary not set",
                                "Invalid FcCurveBoundedPlane. Missing surface position."});
  target.draw(*surface);
  surface->setBasisSurface(plane);
  target.draw(*surface);
  surface->setOuterBoundary(closedLine({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
  target.draw(*surface);
  EXPECT_TRUE(target.empty());

  surface->setInnerBoundaries({closedLine({{1, 1}, {1, 2}, {2, 1}}), nullptr});
  plane->setPosition(geometry::makePlacement(Matrix({0, 0, 7}, {0, 1, 0}, {1, 0, 0})));
  target.draw(*surface);
  ASSERT_THAT(target.polygons, SizeIs(1));
  ASSERT_THAT(target.polygons[0].what, ElementsAre(SizeIs(4), SizeIs(3)));
  EXPECT_TRUE(target.polygons[0].what[0][2].isNear({0, 4, 11}));
  EXPECT_EQ(surface->boundingBox(params)->maximum().z, 11);
}

TEST(AnnotationFillArea, IsAPolygonWithHoles) {
  auto area = makeEntity<presentationdefinition::FcAnnotationFillArea>();
  DrawRecorder target;
  const ExpectAsserts expected({"Outer boundary not set"});
  target.draw(*area);
  area->setOuterBoundary(closedLine({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
  area->setInnerBoundaries({closedLine({{1, 1}, {1, 2}, {2, 1}})});
  target.draw(*area);
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what, ElementsAre(SizeIs(4), SizeIs(3)));
  area->transform(shift);
  EXPECT_EQ(*area->boundingBox(params), Extent({10, 0, 0}, {14, 4, 0}));
}

TEST(TextLiteral, StandsAtItsPlacement) {
  auto text = makeEntity<presentationdefinition::FcTextLiteral>();
  text->setLiteral("Küche");
  text->setPlacement(geometry::FcAxis2Placement(geometry::makePlacement(shift)));
  text->transform(shift);
  DrawRecorder target;
  target.draw(*text);
  ASSERT_THAT(target.texts, SizeIs(1));
  EXPECT_EQ(target.texts[0].what, "Küche");
  EXPECT_TRUE(target.texts[0].frame.origin().isNear({20, 0, 0}));
  EXPECT_EQ(target.transformationGet(), Matrix());
}

TEST(EdgeCurve, RunsBetweenItsVerticesAgainstItsCurveWhereItSaysSo) {
  auto circle = makeEntity<geometry::FcCircle>();
  circle->setPosition(geometry::FcAxis2Placement(geometry::makePlacement(Matrix())));
  circle->setRadius(1);
  const auto vertex = [](const Point3d& at) {
    auto result = makeEntity<FcVertexPoint>();
    result->setVertexGeometry(makePoint(at));
    return result;
  };
  auto edge = makeEntity<FcEdgeCurve>();
  edge->setEdgeStart(vertex({1, 0, 0}));
  edge->setEdgeEnd(vertex({0, 1, 0}));
  EXPECT_TRUE(edge->getPoints3d(params).empty()) << "without a curve";
  edge->setEdgeGeometry(circle);
  edge->setSameSense(true);
  const auto quarter = edge->getPoints3d(params);
  ASSERT_THAT(quarter, SizeIs(7)) << "6 of 24 segments";
  EXPECT_TRUE(quarter[0].isNear({1, 0, 0}));
  EXPECT_GT(quarter[3].y, 0);
  edge->setSameSense(false);
  const auto threeQuarters = edge->getPoints3d(params);
  ASSERT_THAT(threeQuarters, SizeIs(19));
  EXPECT_LT(threeQuarters[1].y, 0);
  EXPECT_TRUE(threeQuarters.back().isNear({0, 1, 0}));
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
