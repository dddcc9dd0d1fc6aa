#include <gtest/gtest.h>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <Standard_DivideByZero.hxx>

#include <numbers>

#include "Fc/ComplexGeometry/Bridge/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/GeometricModel/FcAdvancedBrep.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcCylindricalSurface.h"
#include "Fc/Resource/Geometry/FcEllipse.h"
#include "Fc/Resource/Geometry/FcLine.h"
#include "Fc/Resource/Geometry/FcSphericalSurface.h"
#include "Fc/Resource/Geometry/FcToroidalSurface.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Fc/Resource/Topology/FcAdvancedFace.h"
#include "Fc/Resource/Topology/FcEdgeCurve.h"
#include "Fc/Resource/Topology/FcEdgeLoop.h"
#include "Fc/Resource/Topology/FcOrientedEdge.h"
#include "Tests/Fc/ComplexGeometry/Items.h"
#include "Tests/Fc/ComplexGeometry/ShapeMeasures.h"
#include "Tests/Fc/Geometry/Faces.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc {
namespace {

using test::ExpectAsserts;
using test::isClosedSolidOfVolume;
using test::params;
using test::volumeOf;
using namespace resource::topology;

Points modelPoints(const std::vector<math::Point3d>& places) {
  Points points;
  for (const math::Point3d& place : places) points.push_back(resource::geometry::makePoint(place));
  return points;
}

// A box of polygon faces; each corner is one point, or one for each face when `shared` is false.
std::shared_ptr<FcClosedShell> boxShell(bool shared, bool inward, std::size_t missing = 0) {
  const auto places = test::boxCorners({0, 0, 0}, {1, 2, 3});
  const Points corners = modelPoints(places);
  std::vector<std::shared_ptr<FcFace>> faces;
  for (std::size_t i = 0; i + missing < test::boxSides.size(); ++i) {
    Points points;
    for (const std::uint32_t corner : test::boxSides[i])
      points.push_back(shared ? corners[corner] : resource::geometry::makePoint(places[corner]));
    faces.push_back(face({bound(loop(points), !inward)}));
  }
  return shell<FcClosedShell>(faces);
}

TEST(OpenCascade, ReportsWhatItThrowsAndWhatItDoesntMake) {
  const ExpectAsserts expected({{"failed", "qor::fc::tryOpenCascadeConstruction"}, "null"});
  EXPECT_TRUE(tryOpenCascadeConstruction<TopoDS_Shape>(
                  []() -> TopoDS_Shape { throw Standard_DivideByZero(); }, "failed", "null")
                  .IsNull());
  EXPECT_TRUE(
      tryOpenCascadeConstruction<TopoDS_Solid>([] { return TopoDS_Solid(); }, "failed", "null")
          .IsNull());
  EXPECT_THROW(tryOpenCascadeConstruction<TopoDS_Shape>(
                   []() -> TopoDS_Shape { throw std::runtime_error("other"); }, "failed", "null"),
               std::runtime_error);
}

TEST(OpenCascade, MovesScalesAndMirrorsShapesThatStayOutward) {
  const ExpectAsserts expected({"Could not perform OpenCascade Move operation"});
  const auto moved = [](const math::Matrix& matrix) {
    TopoDS_Shape shape = BRepPrimAPI_MakeBox(1, 2, 3).Solid();
    transformOpenCascadeShape(shape, matrix);
    return shape;
  };
  EXPECT_TRUE(moved({}).Location().IsIdentity());
  const math::Matrix noFrame({0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {1, 0, 0});
  EXPECT_TRUE(moved(noFrame).Location().IsIdentity());
  const math::Matrix turned =
      math::Matrix::createZRotate(0.3) * math::Matrix::createTranslation({5, 0, 0});
  const struct {
    math::Matrix matrix;
    double volume;
  } cases[] = {{turned, 6},
               {math::Matrix::createScale(2, 2, 2) * turned, 48},
               {math::Matrix::createScale(1, -1, 1) * turned, 6},
               {math::Matrix::createScale(-0.5, 0.5, 0.5) * turned, 0.75},
               {math::Matrix::createScale(1, 2, 3) * turned, 36}};
  for (const auto& [matrix, volume] : cases) {
    const TopoDS_Shape shape = moved(matrix);
    EXPECT_NEAR(volumeOf(shape), volume, 1e-6);
    EXPECT_TRUE(isClosedSolidOfVolume(faceSetsFromShapes({shape}, params().curveDiscretization()),
                                      volume, 1e-6));
  }
}

TEST(OpenCascade, ClosesARingWhetherItsEndIsRepeatedOrNot) {
  const ExpectAsserts expected({"BRepBuilderAPI_MakePolygon was not successful.",
                                "BRepBuilderAPI_MakePolygon was not successful."});
  const std::vector<math::Point3d> open{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}};
  auto repeated = open;
  repeated.push_back(open.front());
  for (const auto& points : {open, repeated}) {
    const TopoDS_Wire wire = getClosedWireFromPoints(points);
    EXPECT_EQ(test::countOf(wire, TopAbs_EDGE), 3);
    EXPECT_TRUE(wire.Closed());
  }
  EXPECT_TRUE(getClosedWireFromPoints({}).IsNull());
  EXPECT_TRUE(getClosedWireFromPoints({{1, 1, 1}, {1, 1, 1}, {1, 1, 1}}).IsNull());
}

TEST(OpenCascade, MeshesABoxIntoSixQuadsAndACylinderClosed) {
  const ExpectAsserts none;
  const TopoDS_Shape box = BRepPrimAPI_MakeBox(1, 2, 3).Solid();
  const TopoDS_Shape cylinder = BRepPrimAPI_MakeCylinder(1, 2).Solid();
  const auto sets =
      faceSetsFromShapes({TopoDS_Shape(), box, cylinder}, params(0.001).curveDiscretization());
  ASSERT_EQ(sets.size(), 2u);
  EXPECT_EQ(sets[0].faces.size(), 6u);
  EXPECT_EQ(sets[0].coordinates.size(), 8u);
  EXPECT_TRUE(isClosedSolidOfVolume({sets[0]}, 6, 1e-12));
  EXPECT_TRUE(isClosedSolidOfVolume({sets[1]}, 2 * std::numbers::pi, 0.005));
  EXPECT_EQ(faceSetsFromShapes({box}, math::CurveDiscretization(0, 3, 9)).size(), 1u);
}

TEST(FaceSets, BecomeSolidsWhereTheyCloseAndShellsWhereNot) {
  const ExpectAsserts none;
  const auto closed = test::boxItem({0, 0, 0}, {1, 2, 3})->ocRepresentation(params());
  ASSERT_EQ(closed.size(), 1u);
  EXPECT_EQ(closed[0].ShapeType(), TopAbs_SOLID);
  EXPECT_NEAR(volumeOf(closed), 6, 1e-9);
  const auto open = test::boxItem({0, 0, 0}, {1, 2, 3}, 1)->ocRepresentation(params());
  ASSERT_EQ(open.size(), 1u);
  EXPECT_EQ(open[0].ShapeType(), TopAbs_SHELL);
  EXPECT_EQ(test::countOf(open[0], TopAbs_FACE), 5);
}

TEST(FaceSets, LoseAFaceThatIsOffItsPlane) {
  auto item = test::boxItem({0, 0, 0}, {1, 2, 3});
  const ExpectAsserts expected(
      std::vector<test::ExpectedAssert>(3,
                                        "Could not create opencascade face of FcFace. Its points "
                                        "was probably not on a plane."));
  generate::draw::PolygonalFaceSetOpenGL bent = *item->createQorPolygonalFaceSet();
  bent.coordinates[7] = bent.coordinates[7] + math::Vector3d(0.01, 0.01, 0.01);
  item = resource::geometricmodel::FcPolygonalFaceSet::fromQorPolygonalFaceSet(bent).first;
  EXPECT_EQ(test::countOf(item->ocRepresentation(params())[0], TopAbs_FACE), 3);
}

// Corners of a box that is turned and rounded to millimetres lie off the planes of its sides.
TEST(FaceSets, CloseThoughTheirCoordinatesAreRounded) {
  const ExpectAsserts none;
  const auto item = test::boxItem({0, 0, 0}, {1, 2, 3});
  generate::draw::PolygonalFaceSetOpenGL rounded = *item->createQorPolygonalFaceSet();
  const math::Matrix turn = math::Matrix::createZRotate(0.3) * math::Matrix::createXRotate(0.7);
  for (math::Point3d& point : rounded.coordinates) {
    const math::Point3d turned = point * turn;
    point = {std::round(turned.x * 1000) / 1000, std::round(turned.y * 1000) / 1000,
             std::round(turned.z * 1000) / 1000};
  }
  const auto shapes = resource::geometricmodel::FcPolygonalFaceSet::fromQorPolygonalFaceSet(rounded)
                          .first->ocRepresentation(params());
  ASSERT_EQ(shapes.size(), 1u);
  EXPECT_EQ(shapes[0].ShapeType(), TopAbs_SOLID);
  EXPECT_NEAR(volumeOf(shapes), 6, 0.02);
}

TEST(Shells, BecomeOutwardSolidsHoweverTheirFacesLookAndShareTheirPoints) {
  const ExpectAsserts none;
  for (const bool shared : {true, false})
    for (const bool inward : {true, false}) {
      const auto shapes = boxShell(shared, inward)->ocRepresentation(params());
      ASSERT_EQ(shapes.size(), 1u);
      EXPECT_EQ(shapes[0].ShapeType(), TopAbs_SOLID);
      EXPECT_NEAR(volumeOf(shapes), 6, 1e-9);
    }
  const auto open = boxShell(true, false, 1)->ocRepresentation(params());
  ASSERT_EQ(open.size(), 1u);
  EXPECT_EQ(open[0].ShapeType(), TopAbs_SHELL);
}

// A cylinder of radius and height 1, its side in two halves that name one surface.
std::shared_ptr<FcClosedShell> cylinderOfHalves() {
  using namespace resource::geometry;
  using test::make;
  const auto frame = [](double z, double up) {
    return makePlacement(math::Matrix({0, 0, z}, {1, 0, 0}, {0, 0, up}));
  };
  const auto edge = [](const auto& from, const auto& to, const auto& curve) {
    return make<FcEdgeCurve>(
        {{"EdgeStart", from}, {"EdgeEnd", to}, {"EdgeGeometry", curve}, {"SameSense", true}});
  };
  const auto up = [](double x) {
    auto direction = make<FcVector>();
    direction->setVector({0, 0, 1}, 3);
    return make<FcLine>({{"Pnt", makePoint(math::Point3d(x, 0, 0))}, {"Dir", direction}});
  };
  std::vector<std::shared_ptr<FcVertexPoint>> right, left;
  std::vector<std::shared_ptr<FcEdgeCurve>> behind, before;
  for (const double z : {0.0, 1.0}) {
    right.push_back(vertex(1, 0, z));
    left.push_back(vertex(-1, 0, z));
    const auto circle = make<FcCircle>({{"Radius", 1}, {"Position", frame(z, 1)}});
    behind.push_back(edge(right.back(), left.back(), circle));
    before.push_back(edge(left.back(), right.back(), circle));
  }
  const auto atRight = edge(right[0], right[1], up(1)), atLeft = edge(left[0], left[1], up(-1));
  using Uses = std::vector<std::pair<std::shared_ptr<FcEdgeCurve>, bool>>;
  const auto on = [](const std::shared_ptr<FcSurface>& surface, const Uses& uses) {
    std::vector<std::shared_ptr<FcOrientedEdge>> edges;
    for (const auto& [element, forward] : uses)
      edges.push_back(make<FcOrientedEdge>({{"EdgeElement", element}, {"Orientation", forward}}));
    auto result = face<FcAdvancedFace>({bound(make<FcEdgeLoop>({{"EdgeList", edges}}))});
    test::give(*result, {{"FaceSurface", surface}, {"SameSense", true}});
    return result;
  };
  const auto side = make<FcCylindricalSurface>({{"Radius", 1}, {"Position", frame(0, 1)}});
  const auto bottom = make<FcPlane>({{"Position", frame(0, -1)}});
  const auto top = make<FcPlane>({{"Position", frame(1, 1)}});
  return shell<FcClosedShell>(
      {on(side, {{behind[0], true}, {atLeft, true}, {behind[1], false}, {atRight, false}}),
       on(side, {{before[0], true}, {atRight, true}, {before[1], false}, {atLeft, false}}),
       on(bottom, {{before[0], false}, {behind[0], false}}),
       on(top, {{behind[1], true}, {before[1], true}})});
}

TEST(Shells, CloseWhereFacesNameOneSurface) {
  // A difference asks each loop for its box.
  const ExpectAsserts expected(std::vector<test::ExpectedAssert>(
      4, "boundingBox() not implemented for class: class qor::fc::resource::topology::FcEdgeLoop"));
  const auto brep =
      test::make<resource::geometricmodel::FcAdvancedBrep>({{"Outer", cylinderOfHalves()}});
  const auto whole = brep->ocRepresentation(params());
  EXPECT_TRUE(isClosedSolidOfVolume(faceSetsFromShapes(whole, params(0.001).curveDiscretization()),
                                    std::numbers::pi, 0.005));
  const auto half = test::difference(brep, test::halfSpace({0, 0, 0}, {1, 0, 0}));
  EXPECT_NEAR(volumeOf(half->ocRepresentation(params())), std::numbers::pi / 2, 1e-6);
}

TEST(Surfaces, AreRoundWithTheirOwnRadii) {
  const ExpectAsserts none;
  using namespace resource::geometry;
  const auto position = makePlacement(math::Matrix::createTranslation({1, 2, 3}));
  ocMemoizer memoizer;
  const auto sphere =
      test::make<FcSphericalSurface>({{"Position", position}, {"Radius", 2}})->ocSurface(memoizer);
  const auto torus = test::make<FcToroidalSurface>(
                         {{"Position", position}, {"MajorRadius", 3}, {"MinorRadius", 1}})
                         ->ocSurface(memoizer);
  ASSERT_TRUE(sphere && torus);
  EXPECT_NEAR((*sphere)->Value(0, 0).Distance(gp_Pnt(3, 2, 3)), 0, 1e-12);
  EXPECT_NEAR((*torus)->Value(0, std::numbers::pi).Distance(gp_Pnt(3, 2, 3)), 0, 1e-12);
}

TEST(Curves, AreEllipsesWhicheverAxisIsLonger) {
  const ExpectAsserts none;
  using namespace resource::geometry;
  ocMemoizer memoizer;
  for (const auto& [first, second] : {std::pair(2.0, 1.0), {1.0, 2.0}, {1.5, 1.5}}) {
    const auto ellipse = test::make<FcEllipse>(
        {{"Position", makePlacement(math::Matrix())}, {"SemiAxis1", first}, {"SemiAxis2", second}});
    const auto curve = ellipse->ocCurve(memoizer);
    ASSERT_TRUE(curve);
    for (double t = 0; t < 6; t += 0.5) {
      const gp_Pnt at = (*curve)->Value(t);
      EXPECT_NEAR(std::hypot(at.X() / first, at.Y() / second), 1, 1e-12);
    }
  }
}

TEST(Memoizer, SharesTheEdgesOfLoopsThatRunAlongThem) {
  const ExpectAsserts none;
  const Points p = modelPoints({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}});
  ocMemoizer memoizer;
  const TopoDS_Wire a = memoizer.getWire(*loop({p[0], p[1], p[2]}));
  const TopoDS_Wire b = memoizer.getWire(*loop({p[0], p[2], p[2], p[3]}));
  int common = 0;
  for (TopExp_Explorer i(a, TopAbs_EDGE); i.More(); i.Next()) {
    for (TopExp_Explorer j(b, TopAbs_EDGE); j.More(); j.Next()) {
      if (!i.Current().IsSame(j.Current())) continue;
      ++common;
      EXPECT_NE(i.Current().Orientation(), j.Current().Orientation());
    }
  }
  EXPECT_EQ(common, 1);
}

TEST(Memoizer, RefusesLoopsThatGoRoundNothing) {
  const Points p = modelPoints({{0, 0, 0}, {1, 0, 0}});
  const ExpectAsserts expected({"Not enough points in FcPolyLoop.",
                                "Not enough unique points in FcPolyLoop.",
                                "Not enough unique points in FcPolyLoop.",
                                "Assertion failed: expect valid FcCartesianPoint"});
  ocMemoizer memoizer;
  for (const Points& points : {Points{p[0], p[1]}, Points{p[0], p[1], p[0], p[1]},
                               Points{p[0], p[0], p[0]}, Points{p[0], nullptr, p[1]}})
    EXPECT_TRUE(memoizer.getWire(*loop(points)).IsNull());
}

}  // namespace
}  // namespace qor::fc
