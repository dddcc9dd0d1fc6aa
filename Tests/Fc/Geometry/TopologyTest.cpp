#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/FcParams.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Topology/FcAdvancedFace.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcEdgeLoop.h"
#include "Fc/Resource/Topology/FcFaceOuterBound.h"
#include "Fc/Resource/Topology/FcOpenShell.h"
#include "Fc/Resource/Topology/FcOrientedEdge.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Fc/Resource/Topology/FcVertexPoint.h"
#include "Qor/Assert/Exception.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::topology {
namespace {

using geometry::FcCartesianPoint;
using math::Point2d;
using math::Point3d;
using test::DrawRecorder;
using test::ExpectAsserts;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Points = std::vector<std::shared_ptr<FcCartesianPoint>>;
using Indices = std::vector<std::uint32_t>;

const FcParams params(math::CurveDiscretization(1e-3, 24, 24));

std::shared_ptr<FcCartesianPoint> point(double x, double y, double z) {
  auto result = makeEntity<FcCartesianPoint>();
  result->setCoordinates({x, y, z});
  return result;
}

std::shared_ptr<FcPolyLoop> loop(Points polygon) {
  auto result = makeEntity<FcPolyLoop>();
  result->setPolygon(std::move(polygon));
  return result;
}

template <class Bound>
std::shared_ptr<Bound> bound(std::shared_ptr<FcLoop> edge, bool orientation = true) {
  auto result = makeEntity<Bound>();
  result->setBound(std::move(edge));
  result->setOrientation(orientation);
  return result;
}

template <class Face = FcFace>
std::shared_ptr<Face> face(std::vector<std::shared_ptr<FcFaceBound>> bounds) {
  auto result = makeEntity<Face>();
  result->setBounds(std::move(bounds));
  return result;
}

template <class Face = FcFace>
std::shared_ptr<Face> polygon(Points corners) {
  return face<Face>({bound<FcFaceOuterBound>(loop(std::move(corners)))});
}

/// The eight corners of a unit cube, and its six faces over them, looking outward.
struct Cube {
  Points p{point(0, 0, 0), point(1, 0, 0), point(1, 1, 0), point(0, 1, 0),
           point(0, 0, 1), point(1, 0, 1), point(1, 1, 1), point(0, 1, 1)};
  std::vector<std::shared_ptr<FcFace>> faces{
      polygon({p[0], p[3], p[2], p[1]}), polygon({p[0], p[1], p[5], p[4]}),
      polygon({p[1], p[2], p[6], p[5]}), polygon({p[2], p[3], p[7], p[6]}),
      polygon({p[3], p[0], p[4], p[7]}), polygon({p[4], p[5], p[6], p[7]})};

  std::shared_ptr<FcClosedShell> shell() const {
    auto result = makeEntity<FcClosedShell>();
    result->setCfsFaces(faces);
    return result;
  }
};

std::shared_ptr<FcVertexPoint> vertex(const std::shared_ptr<geometry::FcPoint>& at) {
  auto result = makeEntity<FcVertexPoint>();
  result->setVertexGeometry(at);
  return result;
}

/// A triangle of straight edges; the second one runs the other way in its element.
std::shared_ptr<FcEdgeLoop> edgeTriangle() {
  const auto a = vertex(point(0, 0, 0)), b = vertex(point(1, 0, 0)), c = vertex(point(0, 1, 0));
  const auto oriented = [](const auto& from, const auto& to, bool forward) {
    auto edge = makeEntity<FcEdge>();
    edge->setEdgeStart(forward ? from : to);
    edge->setEdgeEnd(forward ? to : from);
    auto result = makeEntity<FcOrientedEdge>();
    result->setEdgeElement(edge);
    result->setOrientation(forward);
    return result;
  };
  auto result = makeEntity<FcEdgeLoop>();
  result->setEdgeList({oriented(a, b, true), oriented(b, c, false), oriented(c, a, true)});
  return result;
}

TEST(Shell, OfPolygonsIsOneSetOverSharedPoints) {
  DrawRecorder target;
  target.draw(*Cube().shell());
  ASSERT_THAT(target.polygonalSets, SizeIs(1));
  const auto& drawn = target.polygonalSets[0].what;
  EXPECT_THAT(drawn.coordinates, SizeIs(8));
  ASSERT_THAT(drawn.faces, SizeIs(6));
  EXPECT_EQ(drawn.faces[0].outer, (Indices{0, 1, 2, 3}));
  EXPECT_EQ(drawn.faces[1].outer, (Indices{0, 3, 4, 5})) << "shares two points with the first";
  EXPECT_EQ(drawn.coordinates[5], Point3d(0, 0, 1));
}

TEST(Shell, TellsEqualPointsApartByIdentity) {
  auto shell = makeEntity<FcOpenShell>();
  shell->setCfsFaces({polygon({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)}),
                      polygon({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)})});
  EXPECT_THAT(shell->generatePolygonalFaceSet()->coordinates, SizeIs(6));
}

TEST(Shell, OfManyPointsKeepsThemAll) {
  Points points;
  std::vector<std::shared_ptr<FcFace>> faces;
  for (int i = 0; i < 3000; ++i) points.push_back(point(i, i % 7, i % 11));
  for (std::size_t i = 0; i + 2 < points.size(); ++i)
    faces.push_back(polygon({points[i], points[i + 1], points[i + 2]}));
  auto shell = makeEntity<FcOpenShell>();
  shell->setCfsFaces(faces);
  const auto drawn = shell->generatePolygonalFaceSet();
  ASSERT_THAT(drawn->coordinates, SizeIs(3000));
  EXPECT_EQ(drawn->faces.back().outer, (Indices{2997, 2998, 2999}));
}

TEST(Shell, WithoutAProcessorDrawsNothingThatIsCurved) {
  const Cube cube;
  auto shell = makeEntity<FcClosedShell>();
  shell->setCfsFaces({cube.faces[0], face({bound<FcFaceOuterBound>(edgeTriangle())})});
  const ExpectAsserts expected({"No FcComplexGeometryProcessorInterface implementation set."});
  DrawRecorder target;
  target.draw(*shell);
  EXPECT_TRUE(target.empty());
}

TEST(Shell, OfOnePlainFaceDrawsItAsAPolygon) {
  auto shell = makeEntity<FcOpenShell>();
  shell->setCfsFaces({polygon({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)})});
  DrawRecorder target;
  target.draw(*shell);
  EXPECT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.items, ElementsAre(shell->CfsFaces()[0].get()));

  shell->setCfsFaces({polygon<FcAdvancedFace>({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)})});
  DrawRecorder other;
  other.draw(*shell);
  EXPECT_THAT(other.polygonalSets, SizeIs(1));
}

TEST(Shell, PassesOverFacesAndPointsThatAreMissing) {
  const Cube cube;
  auto shell = makeEntity<FcOpenShell>();
  shell->setCfsFaces({nullptr, polygon({cube.p[0], nullptr, cube.p[1], cube.p[2]})});
  const ExpectAsserts expected(
      {"Expect to have a valid face", "Assertion failed: expect valid FcCartesianPoint"});
  EXPECT_THAT(shell->generatePolygonalFaceSet()->faces[0].outer, SizeIs(3));
}

TEST(Face, PutsTheOuterBoundFirstAndTurnsBoundsRound) {
  const Points outer{point(0, 0, 0), point(9, 0, 0), point(0, 9, 0)};
  const Points hole{point(1, 1, 0), point(2, 1, 0), point(1, 2, 0)};
  const auto withHole =
      face({bound<FcFaceBound>(loop(hole), false), bound<FcFaceOuterBound>(loop(outer), true)});

  std::vector<Point3d> coordinates;
  PointIndices indices;
  const auto indexed = withHole->generateIndexedFace(coordinates, indices);
  ASSERT_TRUE(indexed);
  EXPECT_EQ(indexed->outer, (Indices{0, 1, 2}));
  EXPECT_THAT(indexed->holes, ElementsAre(Indices{3, 4, 5}));
  EXPECT_EQ(coordinates[3], Point3d(1, 2, 0)) << "the last point of the hole comes first";

  DrawRecorder target;
  target.draw(*withHole);
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what,
              ElementsAre(ElementsAre(Point3d(0, 0, 0), Point3d(9, 0, 0), Point3d(0, 9, 0)),
                          ElementsAre(Point3d(1, 2, 0), Point3d(2, 1, 0), Point3d(1, 1, 0))));
}

TEST(Face, OfFlatLoopsIsAFlatPolygonUntilOneIsSpatial) {
  auto flat = makeEntity<FcPolyLoop>();
  flat->vPolygonSet(std::vector<Point2d>{{0, 0}, {9, 0}, {0, 9}});
  auto flatHole = makeEntity<FcPolyLoop>();
  flatHole->vPolygonSet(std::vector<Point2d>{{1, 1}, {1, 2}, {2, 1}});
  DrawRecorder target;
  target.draw(*face({bound<FcFaceOuterBound>(flat), bound<FcFaceBound>(flatHole)}));
  ASSERT_THAT(target.flatPolygons, SizeIs(1));
  EXPECT_THAT(target.flatPolygons[0].what, SizeIs(2));

  auto spatial = makeEntity<FcPolyLoop>();
  spatial->vPolygonSet(std::vector<Point3d>{{1, 1, 0}, {1, 2, 0}, {2, 1, 0}});
  target.draw(*face(
      {bound<FcFaceBound>(flatHole), bound<FcFaceBound>(spatial), bound<FcFaceOuterBound>(flat)}));
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what, SizeIs(3));
  EXPECT_EQ(target.polygons[0].what[0][1], Point3d(9, 0, 0));
}

TEST(Face, OfStraightEdgesIsAPolygon) {
  DrawRecorder target;
  target.draw(*face({bound<FcFaceOuterBound>(edgeTriangle())}));
  ASSERT_THAT(target.polygons, SizeIs(1));
  EXPECT_THAT(target.polygons[0].what[0],
              ElementsAre(Point3d(0, 0, 0), Point3d(1, 0, 0), Point3d(0, 1, 0)));
}

TEST(Face, WithoutExactlyOneOuterBoundDrawsNothing) {
  const auto triangle = loop({point(0, 0, 0), point(1, 0, 0), point(0, 1, 0)});
  const struct {
    std::vector<std::shared_ptr<FcFaceBound>> bounds;
    std::vector<test::ExpectedAssert> asserts;
  } cases[] = {
      {{}, {}},
      {{bound<FcFaceBound>(triangle)},
       {"Assertion failed: If there is more than 1 face boundary, exactly one of them must be of "
        "type FcFaceOuterBound. Not drawing this face!"}},
      {{bound<FcFaceOuterBound>(triangle), bound<FcFaceOuterBound>(triangle)},
       {"Assertion failed: This FcFace has more than one FcFaceOuterBound which contradicts IFC4. "
        "Not drawing this face!"}},
      {{bound<FcFaceOuterBound>(triangle), nullptr},
       {"Assertion failed: expect all Bounds() of an FcFace to exist."}},
  };
  for (const auto& c : cases) {
    const ExpectAsserts expected(c.asserts);
    DrawRecorder target;
    target.draw(*face(c.bounds));
    EXPECT_TRUE(target.empty());
  }
}

TEST(Face, ThatCantBeIndexedTellsWhy) {
  const ExpectAsserts expected({"Missing non-optional attribute: Bound"});
  std::vector<Point3d> coordinates;
  PointIndices indices;
  EXPECT_FALSE(face({bound<FcFaceOuterBound>(nullptr)})->generateIndexedFace(coordinates, indices));
  EXPECT_FALSE(
      face({bound<FcFaceOuterBound>(edgeTriangle())})->generateIndexedFace(coordinates, indices));
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
  auto polyLoop = makeEntity<FcPolyLoop>();
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
  auto edge = makeEntity<FcEdge>();
  EXPECT_THAT(edge->getPoints3d(params), IsEmpty());
  edge->setEdgeStart(makeEntity<FcVertex>());
  EXPECT_THROW(edge->getPoints3d(params), qor::exception);
}

TEST(Boxes, AreThoseOfTheParts) {
  EXPECT_EQ(*Cube().shell()->boundingBox(params), math::Extent({0, 0, 0}, {1, 1, 1}));
  EXPECT_FALSE(makeEntity<FcOpenShell>()->boundingBox(params));
}

}  // namespace
}  // namespace qor::fc::resource::topology
