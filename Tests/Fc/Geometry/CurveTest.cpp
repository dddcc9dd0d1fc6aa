#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Fc/Resource/Geometry/FcBSplineCurveWithKnots.h"
#include "Fc/Resource/Geometry/FcClothoid.h"
#include "Fc/Resource/Geometry/FcCompositeCurve.h"
#include "Fc/Resource/Geometry/FcCurveSegment.h"
#include "Fc/Resource/Geometry/FcEllipse.h"
#include "Fc/Resource/Geometry/FcOffsetCurve2D.h"
#include "Fc/Resource/Geometry/FcPcurve.h"
#include "Fc/Resource/Geometry/FcPolynomialCurve.h"
#include "Fc/Resource/Geometry/FcReparametrisedCompositeCurveSegment.h"
#include "Fc/Resource/Geometry/FcSegmentedReferenceCurve.h"
#include "Fc/Resource/Geometry/FcTaperedCurveDiscretization.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"
#include "Items.h"
#include "Qor/Assert/Exception.h"
#include "Qor/Math/Polygon.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometry {
namespace {

using namespace math;
using std::numbers::pi;
using test::ExpectAsserts;
using test::make;
using Parameter = FcCurve::ParameterType;

const std::string classOf = "class qor::fc::resource::geometry::";

std::shared_ptr<FcTrimmedCurve> trimmed(const std::shared_ptr<FcCurve>& basis,
                                        FcTrimmingSelect from, FcTrimmingSelect to,
                                        bool sense = true) {
  auto result = make<FcTrimmedCurve>({{"BasisCurve", basis}, {"SenseAgreement", sense}});
  result->setTrim1({from});
  result->setTrim2({to});
  return result;
}

/// A parent curve, and whether it runs in its own sense.
using Part = std::pair<std::shared_ptr<FcCurve>, bool>;

std::shared_ptr<FcCompositeCurve> composite(const std::vector<Part>& parts) {
  auto result = std::make_shared<FcCompositeCurve>();
  for (const auto& [parent, sense] : parts)
    result->pushBackSegments(
        make<FcCompositeCurveSegment>({{"ParentCurve", parent}, {"SameSense", sense}}));
  return result;
}

TEST(TrimmedCircle, RunsFromTrimToTrimInItsSense) {
  const struct {
    FcTrimmingSelect from, to;
    bool sense;
    double start, sweep;  // what must come out
  } cases[] = {{at(0), at(pi / 2), true, 0, pi / 2},
               {at(1.5 * pi), at(pi / 2), true, 1.5 * pi, pi},  // through angle 0
               {at(0), at(pi / 2), false, 0, -1.5 * pi},
               {at(pi / 2), at(0), false, pi / 2, -pi / 2},
               {at(-pi / 2), at(5 * pi), true, 1.5 * pi, 1.5 * pi},
               {at(Point3d(0, 2, 0)), at(Point3d(-5, 0, 0)), true, pi / 2, pi / 2},
               {at(Point3d(0, -2, 0)), at(0), true, 1.5 * pi, pi / 2}};
  // The same arc wherever the circle lies; from below it runs the other way in the plane.
  const Matrix positions[] = {Matrix(), Matrix({10, 20, 0}, {0, 1, 0}, {0, 0, 1}),
                              Matrix({10, 20, 0}, {0, 1, 0}, {0, 0, -1}),
                              Matrix({1, 2, 3}, {0, 0, 1}, {1, 0, 0})};
  for (const Matrix& position : positions)
    for (const auto& test : cases) {
      const auto place = [&](FcTrimmingSelect trim) {
        if (trim.type() == FcTrimmingSelect::Types::CartesianPoint)
          return at(trim.CartesianPoint()->point() * position);
        return trim;
      };
      const auto curve = trimmed(circle(2, position), place(test.from), place(test.to), test.sense);
      const auto expected = position.transform(
          params.curveDiscretization().discretizeCircularArc(Point2d(), 2, test.start, test.sweep));
      EXPECT_LT(deviation(pointsOf(*curve), expected), 1e-14);
      if (!curve->is2d()) continue;
      Points2d flat;
      for (const Point3d& point : expected) flat.emplace_back(point.x, point.y);
      EXPECT_LT(deviation(curve->curve2d(params, {}, {}, false).value_or(Points2d()), flat), 1e-14);
    }
}

TEST(Circle, IsAFullTurnWithoutTrims) {
  const auto whole = circle(2, Matrix::createTranslation({1, 1, 0}));
  const auto points = pointsOf(*whole);
  ASSERT_EQ(points.size(), 73u);
  EXPECT_LT(points.front().distance({3, 1, 0}), 1e-15);
  EXPECT_LT(points.back().distance({3, 1, 0}), 1e-15);
  EXPECT_EQ(whole->closedCurve2dGet(params)->size(), 72u);
  EXPECT_TRUE(whole->isClosed(params));
  EXPECT_EQ(whole->planarBox(params), math::Extent2d({-1, -1}, {3, 3}));
  EXPECT_EQ(RecordedLines(*whole).polylines.at(0), points);
}

TEST(Circle, ReportsWhatMakesNoCircle) {
  const char* const equalTrims =
      "By informal proposition on IfcTrimmedCurve, trimming points/parameters for a FcCircle "
      "should not be equal.";
  const char* const radius = "Circle should have positive radius";
  const auto tilted = circle(1, Matrix::createXRotate(1));
  FcTrimmingSelect nowhere;
  nowhere.set(FcTrimmingSelect::Types::CartesianPoint);
  const ExpectAsserts expected({radius, radius, radius, "Curve has 3d points",
                                "Curve has 3d points", equalTrims, equalTrims, equalTrims,
                                "FcTrimmingSelect::CartesianPoint is required"});
  EXPECT_TRUE(pointsOf(*circle(1e-6)).empty());
  EXPECT_FALSE(circle(-1)->curve2d(params, {}, {}, false));
  EXPECT_FALSE(circle(NAN)->closedCurve2dGet(params));
  EXPECT_FALSE(tilted->curve2d(params, {}, {}, false));
  EXPECT_FALSE(tilted->closedCurve2dGet(params));
  EXPECT_EQ(pointsOf(*trimmed(circle(1), at(0), at(2 * pi))).size(), 73u) << "whole all the same";
  EXPECT_TRUE(pointsOf(*trimmed(circle(1), at(1), at(1))).empty());
  EXPECT_TRUE(pointsOf(*trimmed(circle(1), at(Point3d(1, 0, 0)), at(Point3d(2, 0, 0)))).empty());
  EXPECT_TRUE(pointsOf(*trimmed(circle(1), at(0), nowhere)).empty());
  EXPECT_TRUE(pointsOf(*trimmed(circle(1), at(0), at(NAN))).empty());
  EXPECT_THROW(pointsOf(*trimmed(circle(1), at(0), FcTrimmingSelect())), qor::exception);
}

TEST(Ellipse, RunsByItsOwnParameter) {
  const auto position = makePlacement(Matrix({10, 0, 0}, {0, 1, 0}, {0, 0, 1}));
  const auto ellipse =
      make<FcEllipse>({{"SemiAxis1", 4}, {"SemiAxis2", 1}, {"Position", position}});
  const auto onEllipse = [](double t) { return Point3d(10 - std::sin(t), 4 * std::cos(t), 0); };
  const auto points = pointsOf(*trimmed(ellipse, at(1), at(onEllipse(2))));
  ASSERT_EQ(points.size(), 13u);
  for (std::size_t i = 0; i < points.size(); ++i)
    EXPECT_LT(points[i].distance(onEllipse(1 + double(i) / 12)), 1e-14);
  const auto planar = trimmed(ellipse, at(1), at(2), false)->curve2d(params, {}, {}, false);
  const Point3d next = onEllipse(1 - (2 * pi - 1) / 61);
  EXPECT_LT((*planar)[1].distance({next.x, next.y}), 1e-14);
  EXPECT_LT(ellipse->planarBox(params)->maximum().distance({11, 4}), 1e-14);
  const ExpectAsserts expected(
      {"By formal proposition on IfcTrimmedCurve, trimming points/parameters for a FcCircle should "
       "not be equal.",
       "Ellipse should have positive SemiAxis2"});
  EXPECT_TRUE(pointsOf(*trimmed(ellipse, at(0), at(2 * pi))).empty());
  ellipse->setSemiAxis2(0);
  EXPECT_TRUE(pointsOf(*ellipse).empty());
}

TEST(Line, RunsAsFarAsItsVector) {
  const auto straight = line({1, 0, 0}, {0, 3, 4});
  EXPECT_EQ(pointsOf(*straight), (Points3d{{1, 0, 0}, {1, 3, 4}}));
  EXPECT_EQ(pointsOf(*trimmed(straight, at(-1), at(Point3d(7, 7, 7)))),
            (Points3d{{1, -3, -4}, {7, 7, 7}}));
  EXPECT_EQ(pointsOf(*trimmed(straight, at(0), at(2), false)), (Points3d{{1, 6, 8}, {1, 0, 0}}));
  EXPECT_FALSE(straight->is2d());
  EXPECT_EQ(straight->boundingBox(params), math::Extent({1, 0, 0}, {1, 3, 4}));
  straight->Pnt()->setPoint(Point2d(0, 0));
  const ExpectAsserts expected({"Dimension of point and vector must be equal.",
                                "FcVector::Orientation is required", "FcLine::Dir is required"});
  EXPECT_EQ(RecordedLines(*straight).polylines.size(), 1u);
  straight->Dir()->setOrientation(nullptr);
  EXPECT_TRUE(RecordedLines(*straight).polylines.empty());
  straight->setDir(nullptr);
  EXPECT_TRUE(pointsOf(*straight).empty());
}

TEST(Polyline, IsClosedByOneEntityAtBothEnds) {
  const auto closed = polyline(Points2d{{0, 0}, {1, 0}, {1, 1}}, true);
  EXPECT_TRUE(closed->isClosed());
  EXPECT_EQ(closed->closedCurve2dGet(params), (Points2d{{0, 0}, {1, 0}, {1, 1}}));
  EXPECT_EQ(RecordedLines(*closed).polygons,
            (std::vector<std::vector<Points3d>>{{{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}}}));
  const auto equal = polyline(Points2d{{0, 0}, {1, 0}, {1, 1}, {0, 0}});
  EXPECT_FALSE(equal->isClosed());
  EXPECT_EQ(equal->closedCurve2dGet(params)->size(), 4u);
  EXPECT_EQ(RecordedLines(*equal).polylines.size(), 1u);
  const auto point = makePoint(Point2d(1, 1));
  EXPECT_FALSE(make<FcPolyline>({{"Points", std::vector{point, point}}})->isClosed());
}

TEST(Polyline, IsTrimmedWhereTheTrimsLieOnIt) {
  const auto path = polyline(Points3d{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}});
  EXPECT_EQ(path->parametricSegments(), (std::vector{std::pair(6.0, Parameter::length)}));
  EXPECT_FALSE(path->curve2d(params, {}, {}, false)) << "its points have a height";
  EXPECT_EQ(path->curveGet(params, {}, {}, true).front(), Point3d(0, 2, 0));
  const struct {
    Point3d from, to;
    bool reverse;
    Points3d expected;
  } cases[] = {{{1, 0, 0}, {1, 2, 0}, false, {{1, 0, 0}, {2, 0, 0}, {2, 2, 0}, {1, 2, 0}}},
               {{1, 2, 0}, {1, 0, 0}, true, {{1, 2, 0}, {2, 2, 0}, {2, 0, 0}, {1, 0, 0}}},
               {{2, 0, 0}, {2, 2, 0}, false, {{2, 0, 0}, {2, 2, 0}}},
               {{0.5, 0, 0}, {1.5, 0, 0}, false, {{0.5, 0, 0}, {1.5, 0, 0}}},
               {{0, 0, 0}, {9, 9, 9}, false, {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}}},
               {{9, 9, 9}, {1, 2, 0}, false, {}}};
  for (const auto& test : cases)
    EXPECT_EQ(path->curveGet(params, at(test.from), at(test.to), test.reverse), test.expected);
  const ExpectAsserts expected(
      {"FcPolyline::curveGet trimming on only one of the ends is not implemented",
       "FcPolyline::curveGet trimming by parameter is not implemented"});
  EXPECT_TRUE(path->curveGet(params, at(Point3d()), {}, false).empty());
  EXPECT_TRUE(path->curveGet(params, at(0), at(1), false).empty());
}

TEST(Polyline, ReportsMissingPoints) {
  const auto broken = polyline(Points2d{{0, 0}, {1, 0}});
  broken->pushBackPoints(nullptr);
  const char* const missing = "There is a non-existent point in this Polyline";
  const ExpectAsserts expected({missing, missing, missing, "There are no points.",
                                "Assertion failed: need at least 2 points."});
  EXPECT_FALSE(broken->curve2d(params, {}, {}, false));
  EXPECT_FALSE(broken->boundingBox(params));
  EXPECT_TRUE(RecordedLines(*broken).polylines.empty());
  EXPECT_TRUE(RecordedLines(FcPolyline()).polylines.empty());
  FcPolyline().setPoints(Points2d{{0, 0}}, false);
}

TEST(CompositeCurve, JoinsItsSegments) {
  const auto straight = polyline(Points2d{{0, 0}, {4, 0}});
  const auto half = trimmed(circle(2, Matrix::createTranslation({2, 0, 0})), at(0), at(pi));
  const auto closed = composite({{straight, true}, {half, true}});
  EXPECT_TRUE(closed->is2d());
  EXPECT_TRUE(closed->isClosed(params));
  EXPECT_EQ(pointsOf(*closed).size(), 38u);
  const auto ring = closed->closedCurve2dGet(params);
  ASSERT_TRUE(ring);
  EXPECT_EQ(ring->size(), 37u);
  EXPECT_NEAR(math::Polygon2d(*ring).signedArea(), 36 * std::sin(pi / 36) * 2, 1e-12);
  const auto open = composite({{half, false}, {polyline(Points2d{{4, 0}, {5, 0}}), true}});
  EXPECT_FALSE(open->isClosed(params));
  EXPECT_FALSE(open->closedCurve2dGet(params));
  EXPECT_LT(pointsOf(*open).front().distance({0, 0, 0}), 1e-15);
  EXPECT_EQ(pointsOf(*open).back(), Point3d(5, 0, 0));
}

TEST(CompositeCurve, ReportsGapsAndWhatIsMissing) {
  const auto straight = polyline(Points2d{{0, 0}, {1, 0}});
  const auto broken = composite({{straight, true}, {nullptr, true}});
  broken->pushBackSegments(nullptr);
  const auto alignment = std::make_shared<FcCompositeCurve>();
  alignment->pushBackSegments(make<FcCurveSegment>({{"ParentCurve", line({0, 0, 0}, {1, 0, 0})}}));
  EXPECT_EQ(alignment->parametricSegments().size(), 1u);
  const ExpectAsserts expected(
      {"By informal proposition: when traversed in the direction indicated by SameSense, the "
       "segments shall join end-to-end",
       "There is a Segment for which its ParentCurve is not set.",
       "Assertion failed: Expect to have ParentCurve set when requesting curve()",
       "There is a Segment which is not set.", "The last Segment is not set.",
       "FcCompositeCurve::curveGet not implemented for reverse",
       "FcSegment::curve is not implemented for " + classOf + "FcCurveSegment"});
  EXPECT_EQ(pointsOf(*composite({{straight, true}, {straight, true}})).size(), 4u);
  EXPECT_FALSE(broken->is2d());
  EXPECT_EQ(pointsOf(*broken).size(), 2u);
  EXPECT_FALSE(broken->isClosed(params));
  EXPECT_TRUE(broken->curveGet(params, {}, {}, true).empty());
  EXPECT_FALSE(FcCompositeCurve().isClosed(params));
  EXPECT_TRUE(RecordedLines(*alignment).polylines.empty());
}

TEST(TrimmedCurve, ChoosesTheEndThatItPrefers) {
  const auto curve = trimmed(line({0, 0, 0}, {1, 0, 0}), at(0), at(1));
  curve->setTrim2({at(Point3d(7, 0, 0)), at(2)});
  curve->setMasterRepresentation(FcTrimmingPreference::PARAMETER);
  EXPECT_EQ(pointsOf(*curve).back(), Point3d(2, 0, 0));
  curve->setMasterRepresentation(FcTrimmingPreference::CARTESIAN);
  EXPECT_EQ(pointsOf(*curve).back(), Point3d(7, 0, 0));
  EXPECT_FALSE(curve->isClosed(params));
  const std::string self = "FcTrimmedCurve::";
  const ExpectAsserts expected(
      {self + "curve2d not implemented for trimming", self + "curve2d not implemented for reverse",
       self + "BasisCurve is required", self + "Trim1 is required", self + "Trim2 is required"});
  EXPECT_FALSE(curve->curve2d(params, at(0), at(1), true));
  EXPECT_TRUE(pointsOf(FcTrimmedCurve()).empty());
}

TEST(Curve, ThatIsPartOfItselfEnds) {
  const auto self = composite({{nullptr, true}});
  auto& segment = static_cast<FcCompositeCurveSegment&>(*self->Segments()[0]);
  segment.setParentCurve(self);
  const auto offset = std::make_shared<FcOffsetCurve2D>();
  offset->setBasisCurve(offset);
  std::shared_ptr<FcCurve> deep = polyline(Points2d{{0, 0}, {1, 0}});
  for (int i = 0; i < 5000; ++i) {
    const std::vector<Part> parts(1, Part(deep, true));
    deep = composite(parts);
  }
  const std::string circular = "Circular dependency in " + classOf;
  const ExpectAsserts expected(
      {circular + "FcCompositeCurve", circular + "FcCompositeCurve", circular + "FcOffsetCurve2D",
       "Too many curves within each other, at " + classOf + "FcCompositeCurve"});
  EXPECT_TRUE(pointsOf(*self).empty());
  EXPECT_FALSE(self->is2d());
  EXPECT_TRUE(offset->parametricSegments().empty());
  EXPECT_TRUE(pointsOf(*deep).empty());
  segment.setParentCurve(nullptr);
  offset->setBasisCurve(nullptr);
}

TEST(Curve, WithoutPointsNamesItsClass) {
  const FcClothoid curve;
  const std::string without = " not implemented for class: " + classOf;
  const ExpectAsserts expected(
      {"isClosed()" + without + "FcClothoid", "is2d()" + without + "FcClothoid",
       "asIndexedPolyCurve()" + without + "FcClothoid",
       "closedCurve2dGet(const qor::fc::FcParams&)" + without + "FcClothoid",
       "curve2d" + without + "FcClothoid", "curveGet" + without + "FcClothoid",
       "FcSpiral not implemented (new in IFC 4.3)",
       "FcPolynominalCurve not implemented (new in IFC 4.3)",
       "curveGet" + without + "FcBSplineCurveWithKnots",
       "curveGet" + without + "FcSegmentedReferenceCurve"});
  EXPECT_FALSE(curve.isClosed(params));
  EXPECT_FALSE(curve.is2d());
  EXPECT_EQ(curve.getAsIndexedPolyCurve(params), nullptr);
  EXPECT_FALSE(curve.closedCurve2dGet(params));
  EXPECT_FALSE(curve.curve2d(params, {}, {}, false));
  EXPECT_TRUE(pointsOf(curve).empty());
  EXPECT_TRUE(curve.parametricSegments().empty());
  EXPECT_TRUE(FcPolynomialCurve().parametricSegments().empty());
  EXPECT_TRUE(RecordedLines(FcBSplineCurveWithKnots()).polylines.empty());
  EXPECT_TRUE(pointsOf(FcSegmentedReferenceCurve()).empty());
}

TEST(Curve, RunsItsParameterOverItsPieces) {
  const auto oneLength = std::vector{std::pair(1.0, Parameter::length)};
  const auto turn = std::vector{std::pair(2 * pi, Parameter::angle)};
  EXPECT_EQ(FcTrimmedCurve().parametricSegments(), oneLength);
  EXPECT_EQ(FcBSplineCurveWithKnots().parametricSegments(), oneLength);
  EXPECT_EQ(FcEllipse().parametricSegments(), turn);
  FcPcurve onSurface;
  EXPECT_TRUE(onSurface.parametricSegments().empty());
  onSurface.setReferenceCurve(circle(1));
  EXPECT_EQ(onSurface.parametricSegments(), turn);
  auto joined = composite({{line({}, {5, 0, 0}), true}, {circle(7), true}});
  joined->pushBackSegments(make<FcReparametrisedCompositeCurveSegment>({{"ParamLength", 3}}));
  EXPECT_EQ(joined->parametricSegments(),
            (std::vector{oneLength[0], turn[0], std::pair(3.0, Parameter::length)}));
}

TEST(Curve, ConvertsTheAnglesAmongItsParameters) {
  const double degree = pi / 180;
  EXPECT_DOUBLE_EQ(circle(1)->convertParameterToSi(720, degree), 4 * pi);
  EXPECT_DOUBLE_EQ(circle(1)->convertParameterFromSi(pi, degree), 180);
  const auto joined =
      composite({{line({}, {1, 0, 0}), true}, {circle(1), true}, {line({}, {1, 0, 0}), true}});
  const std::pair<double, double> storedAndSi[] = {
      {0, 0},           {0.5, 0.5}, {1, 1}, {181, 1 + pi}, {361, 1 + 2 * pi}, {361.5, 1.5 + 2 * pi},
      {362, 2 + 2 * pi}};
  for (const auto& [stored, si] : storedAndSi) {
    EXPECT_DOUBLE_EQ(joined->convertParameterToSi(stored, degree), si);
    EXPECT_DOUBLE_EQ(joined->convertParameterFromSi(si, degree), stored);
  }
  EXPECT_DOUBLE_EQ(joined->convertParameterToSi(1000, degree), 2 + 2 * pi);
  EXPECT_DOUBLE_EQ(joined->convertParameterFromSi(1000, degree), 362);
}

TEST(TaperedDiscretization, CutsTheSecondProfileLikeTheFirst) {
  FcTaperedCurveDiscretization first(math::CurveDiscretization(0.001, 8, 1000));
  const auto small = first.numberOfCircleSegments(0.1), large = first.numberOfCircleSegments(10);
  ASSERT_LT(small, large);
  const auto copy = first.copy();
  auto& second = static_cast<FcTaperedCurveDiscretization&>(*copy);
  second.collecting = false;
  EXPECT_EQ(second.discretizeCircle(Point2d(), 5).size(), small);
  EXPECT_EQ(second.numberOfArcSegments(0.01, 2 * pi), large);
  const ExpectAsserts expected(
      {"Number of collected radii is lower than radii used in seconds run"});
  EXPECT_EQ(second.numberOfCircleSegments(0.1), small);
}

}  // namespace
}  // namespace qor::fc::resource::geometry
