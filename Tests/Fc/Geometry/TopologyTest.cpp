#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Topology/FcAdvancedFace.h"
#include "Fc/Resource/Topology/FcEdgeCurve.h"
#include "Fc/Resource/Topology/FcEdgeLoop.h"
#include "Fc/Resource/Topology/FcOrientedEdge.h"
#include "Qor/Assert/Exception.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Fc/Geometry/Faces.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::topology {
namespace {

using math::Point2d;
using math::Point3d;
using test::DrawRecorder;
using test::ExpectAsserts;
using test::make;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Indices = std::vector<std::uint32_t>;

const FcParams params(math::CurveDiscretization(1e-3, 24, 24));

DrawRecorder drawn(const geometry::FcRepresentationItem& item) {
  DrawRecorder target;
  target.draw(item);
  return target;
}

std::shared_ptr<FcFace> triangle() {
  return polygon({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)});
}

/// A triangle of straight edges; the second one runs the other way in its element.
std::shared_ptr<FcEdgeLoop> edgeTriangle() {
  const auto a = vertex(0, 0, 0), b = vertex(1, 0, 0), c = vertex(0, 1, 0);
  const auto oriented = [](const auto& from, const auto& to, bool forward) {
    const auto edge =
        make<FcEdge>({{"EdgeStart", forward ? from : to}, {"EdgeEnd", forward ? to : from}});
    return make<FcOrientedEdge>({{"EdgeElement", edge}, {"Orientation", forward}});
  };
  auto result = make<FcEdgeLoop>();
  result->setEdgeList({oriented(a, b, true), oriented(b, c, false), oriented(c, a, true)});
  return result;
}

TEST(Shell, OfPolygonsIsOneSetOverSharedPoints) {
  const auto target = drawn(*Tetrahedron().shell);
  ASSERT_THAT(target.polygonalSets, SizeIs(1));
  const auto& set = target.polygonalSets[0].what;
  EXPECT_THAT(set.coordinates, SizeIs(4));
  ASSERT_THAT(set.faces, SizeIs(4));
  EXPECT_EQ(set.faces[0].outer, (Indices{0, 1, 2}));
  EXPECT_EQ(set.faces[1].outer, (Indices{0, 2, 3})) << "shares two points with the first";
  EXPECT_EQ(set.coordinates[3], Point3d(0, 0, 1));

  const auto equal = shell({triangle(), triangle()})->generatePolygonalFaceSet();
  EXPECT_THAT(equal->coordinates, SizeIs(6)) << "equal points of different identity";
}

TEST(Shell, OfManyPointsKeepsThemAll) {
  Points points;
  std::vector<std::shared_ptr<FcFace>> faces;
  for (int i = 0; i < 3000; ++i) points.push_back(point(i, i % 7, i % 11));
  for (std::size_t i = 0; i + 2 < points.size(); ++i)
    faces.push_back(polygon({points[i], points[i + 1], points[i + 2]}));
  const auto set = shell(faces)->generatePolygonalFaceSet();
  ASSERT_THAT(set->coordinates, SizeIs(3000));
  EXPECT_EQ(set->faces.back().outer, (Indices{2997, 2998, 2999}));
}

TEST(Shell, WithoutAProcessorDrawsNothingThatIsCurved) {
  const auto curved = shell<FcClosedShell>({triangle(), face({bound(edgeTriangle())})});
  const ExpectAsserts expected({"No FcComplexGeometryProcessorInterface implementation set."});
  EXPECT_TRUE(drawn(*curved).empty());
}

TEST(Shell, OfOnePlainFaceDrawsItAsAPolygon) {
  const auto plain = triangle();
  const auto target = drawn(*shell({plain}));
  EXPECT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.items, ElementsAre(plain.get()));
  const auto advanced = polygon<FcAdvancedFace>({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)});
  EXPECT_THAT(drawn(*shell({advanced})).polygonalSets, SizeIs(1));
}

TEST(Shell, PassesOverFacesAndPointsThatAreMissing) {
  const Points p = Tetrahedron().p;
  const auto broken = shell({nullptr, polygon({p[0], nullptr, p[1], p[2]})});
  const ExpectAsserts expected(
      {"Expect to have a valid face", "Assertion failed: expect valid FcCartesianPoint"});
  EXPECT_THAT(broken->generatePolygonalFaceSet()->faces[0].outer, SizeIs(3));
  EXPECT_FALSE(shell({})->boundingBox(params));
}

TEST(Face, PutsTheOuterBoundFirstAndTurnsBoundsRound) {
  const Points outer{point(0, 0, 0), point(9, 0, 0), point(0, 9, 0)};
  const Points hole{point(1, 1, 0), point(2, 1, 0), point(1, 2, 0)};
  const auto withHole = face({bound<FcFaceBound>(loop(hole), false), bound(loop(outer), true)});

  std::vector<Point3d> coordinates;
  PointIndices indices;
  const auto indexed = withHole->generateIndexedFace(coordinates, indices);
  ASSERT_TRUE(indexed);
  EXPECT_EQ(indexed->outer, (Indices{0, 1, 2}));
  EXPECT_THAT(indexed->holes, ElementsAre(Indices{3, 4, 5}));
  EXPECT_EQ(coordinates[3], Point3d(1, 2, 0)) << "the last point of the hole comes first";

  const auto target = drawn(*withHole);
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what,
              ElementsAre(ElementsAre(Point3d(0, 0, 0), Point3d(9, 0, 0), Point3d(0, 9, 0)),
                          ElementsAre(Point3d(1, 2, 0), Point3d(2, 1, 0), Point3d(1, 1, 0))));
}

TEST(Face, OfFlatLoopsIsAFlatPolygonUntilOneIsSpatial) {
  auto flat = make<FcPolyLoop>();
  flat->vPolygonSet(std::vector<Point2d>{{0, 0}, {9, 0}, {0, 9}});
  auto flatHole = make<FcPolyLoop>();
  flatHole->vPolygonSet(std::vector<Point2d>{{1, 1}, {1, 2}, {2, 1}});
  DrawRecorder target;
  target.draw(*face({bound(flat), bound<FcFaceBound>(flatHole)}));
  ASSERT_THAT(target.flatPolygons, SizeIs(1));
  EXPECT_THAT(target.flatPolygons[0].what, SizeIs(2));

  auto spatial = make<FcPolyLoop>();
  spatial->vPolygonSet(std::vector<Point3d>{{1, 1, 0}, {1, 2, 0}, {2, 1, 0}});
  target.draw(*face({bound<FcFaceBound>(flatHole), bound<FcFaceBound>(spatial), bound(flat)}));
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what, SizeIs(3));
  EXPECT_EQ(target.polygons[0].what[0][1], Point3d(9, 0, 0));
}

TEST(Face, OfStraightEdgesIsAPolygon) {
  const auto target = drawn(*face({bound(edgeTriangle())}));
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what[0],
              ElementsAre(Point3d(0, 0, 0), Point3d(1, 0, 0), Point3d(0, 1, 0)));
}

TEST(Face, WithoutExactlyOneOuterBoundDrawsNothing) {
  const auto ring = loop({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)});
  const struct {
    std::vector<std::shared_ptr<FcFaceBound>> bounds;
    std::vector<test::ExpectedAssert> asserts;
  } cases[] = {
      {{}, {}},
      {{bound<FcFaceBound>(ring)},
       {"Assertion failed: If there is more than 1 face boundary, exactly one of them must be of "
        "type FcFaceOuterBound. Not drawing this face!"}},
      {{bound(ring), bound(ring)},
       {"Assertion failed: This FcFace has more than one FcFaceOuterBound which contradicts IFC4. "
        "Not drawing this face!"}},
      {{bound(ring), nullptr}, {"Assertion failed: expect all Bounds() of an FcFace to exist."}},
  };
  for (const auto& c : cases) {
    const ExpectAsserts expected(c.asserts);
    EXPECT_TRUE(drawn(*face(c.bounds)).empty());
  }
}

TEST(Face, ThatCantBeIndexedTellsWhy) {
  const ExpectAsserts expected({"Missing non-optional attribute: Bound"});
  std::vector<Point3d> coordinates;
  PointIndices indices;
  EXPECT_FALSE(face({bound(nullptr)})->generateIndexedFace(coordinates, indices));
  EXPECT_FALSE(face({bound(edgeTriangle())})->generateIndexedFace(coordinates, indices));
  EXPECT_FALSE(face({})->generateIndexedFace(coordinates, indices));
}

TEST(FaceBound, DrawsItsContourInItsDirection) {
  DrawRecorder target;
  target.draw(*bound<FcFaceBound>(loop({point(0, 0, 5), point(1, 0, 5), point(0, 1, 5)}), false));
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_EQ(target.polygons[0].what[0][0], Point3d(0, 1, 5));
  target.draw(*bound<FcFaceBound>(nullptr));
  target.draw(*bound<FcFaceBound>(loop({})));
  EXPECT_THAT(target.polygons, SizeIs(1));
}

TEST(PolyLoop, KnowsTheDimensionOfItsPoints) {
  auto polyLoop = make<FcPolyLoop>();
  std::vector<Point2d> flat;
  EXPECT_FALSE(polyLoop->boPoints2dGet(flat));
  EXPECT_FALSE(polyLoop->boundingBox(params));
  polyLoop->vPolygonSet(std::vector<Point2d>{{1, 2}, {3, 4}});
  EXPECT_TRUE(polyLoop->wasPolygonSetFromPointsOfDimension(2));
  EXPECT_TRUE(polyLoop->boPoints2dGet(flat));
  EXPECT_THAT(flat, ElementsAre(Point2d(1, 2), Point2d(3, 4)));
  EXPECT_THAT(polyLoop->points3dGet(params), ElementsAre(Point3d(1, 2, 0), Point3d(3, 4, 0)));
  EXPECT_EQ(*polyLoop->boundingBox(params), math::Extent({1, 2, 0}, {3, 4, 0}));
  polyLoop->vPolygonSet(std::vector<Point3d>{{1, 2, 3}});
  EXPECT_FALSE(polyLoop->boPoints2dGet(flat));
}

TEST(Edge, WithoutAPointOfTheRightKindThrows) {
  auto edge = make<FcEdge>();
  EXPECT_THAT(edge->getPoints3d(params), IsEmpty());
  edge->setEdgeStart(make<FcVertex>());
  EXPECT_THROW(edge->getPoints3d(params), qor::exception);
}

TEST(EdgeCurve, RunsBetweenItsVerticesAgainstItsCurveWhereItSaysSo) {
  const auto circle = make<geometry::FcCircle>(
      {{"Position", geometry::makePlacement(math::Matrix())}, {"Radius", 1}});
  const auto edge =
      make<FcEdgeCurve>({{"EdgeStart", vertex(1, 0, 0)}, {"EdgeEnd", vertex(0, 1, 0)}});
  EXPECT_THAT(edge->getPoints3d(params), IsEmpty()) << "without a curve";
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
}  // namespace qor::fc::resource::topology
