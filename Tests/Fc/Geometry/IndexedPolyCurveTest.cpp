#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Shapes/RoundedPath.h"
#include "Items.h"
#include "Qor/Assert/Exception.h"
#include "Qor/Math/Polygon.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::geometry {
namespace {

using namespace geometricmodel;
using namespace math;
using std::numbers::pi;
using test::ExpectAsserts;
using Parameter = FcCurve::ParameterType;
using Segments = std::vector<FcSegmentIndexSelect>;
using Indices = std::vector<measure::FcPositiveInteger>;

FcSegmentIndexSelect line(Indices indices) {
  return FcSegmentIndexSelect(FcLineIndex(std::move(indices)));
}
FcSegmentIndexSelect arc(std::int64_t a, std::int64_t b, std::int64_t c) {
  return FcSegmentIndexSelect(FcArcIndex({a, b, c}));
}

/// "line 1 2, arc 2 3 4".
std::string textOf(const Segments& segments) {
  std::string text;
  const auto append = [&](const char* kind, const auto& indices) {
    if (!text.empty()) text += ", ";
    text += kind;
    for (const auto& index : indices) text += ' ' + std::to_string(index.value());
  };
  for (const FcSegmentIndexSelect& segment : segments) {
    if (segment.type() == FcSegmentIndexSelect::Types::ArcIndex)
      append("arc", segment.ArcIndex().value());
    else
      append("line", segment.LineIndex().value());
  }
  return text;
}

template <class List, class Points>
std::shared_ptr<FcIndexedPolyCurve> curve(const Points& points, std::optional<Segments> segments) {
  auto list = std::make_shared<List>();
  list->setPoints(points);
  auto result = std::make_shared<FcIndexedPolyCurve>();
  result->setPoints(list);
  if (segments) result->setSegments(*segments);
  return result;
}
std::shared_ptr<FcIndexedPolyCurve> curve(const Points2d& points,
                                          std::optional<Segments> segments = {}) {
  return curve<FcCartesianPointList2D>(points, std::move(segments));
}
std::shared_ptr<FcIndexedPolyCurve> curve(const Points3d& points,
                                          std::optional<Segments> segments = {}) {
  return curve<FcCartesianPointList3D>(points, std::move(segments));
}

// Along the X axis, back on a half circle above it.
const Points2d dome{{0, 0}, {4, 0}, {2, 2}};
const Segments domeSegments{line({1, 2}), arc(2, 3, 1)};

TEST(IndexedPolyCurve, GoesThroughAllPointsWithoutSegments) {
  const auto open = curve(Points2d{{0, 0}, {1, 0}, {1, 1}});
  EXPECT_EQ(pointsOf(*open), (Points3d{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}));
  EXPECT_FALSE(open->isClosed());
  EXPECT_FALSE(open->closedCurve2dGet(params));
  EXPECT_EQ(open->parametricSegments(), (std::vector{std::pair(2.0, Parameter::length)}));
  EXPECT_EQ(RecordedLines(*open).polylines.size(), 1u);
  const auto closed = curve(Points2d{{0, 0}, {1, 0}, {1, 1}, {0, 0}});
  EXPECT_TRUE(closed->isClosed());
  EXPECT_EQ(closed->closedCurve2dGet(params)->size(), 3u);
  EXPECT_EQ(RecordedLines(*closed).polygons,
            (std::vector<std::vector<Points3d>>{{{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}}}));
}

TEST(IndexedPolyCurve, TellsWhichPointsLieOnArcs) {
  const auto closed = curve(dome, domeSegments);
  EXPECT_TRUE(closed->isClosed());
  EXPECT_TRUE(closed->is2d());
  const auto profile = closed->closed2dCurveWithEdgeInformation(params, {}, {}, false);
  ASSERT_TRUE(profile);
  ASSERT_EQ(profile->contours()[0].size(), 38u);
  EXPECT_EQ(profile->contours()[0].front(), profile->contours()[0].back());
  for (std::size_t i = 0; i < 38; ++i) EXPECT_EQ(profile->isSoft(0, i), i >= 2);
  EXPECT_NEAR(math::Polygon2d(*closed->closedCurve2dGet(params)).signedArea(),
              36 * std::sin(pi / 36) * 2, 1e-12);
  EXPECT_EQ(RecordedLines(*closed).polygons[0][0].size(), 37u);
  const auto extents = closed->parametricSegments();
  ASSERT_EQ(extents.size(), 2u);
  EXPECT_EQ(extents[0], std::pair(1.0, Parameter::length));
  EXPECT_NEAR(extents[1].first, pi, 1e-14);
  EXPECT_DOUBLE_EQ(closed->convertParameterToSi(1, pi / 180), 1);
  EXPECT_NEAR(closed->convertParameterToSi(91, pi / 180), 1 + pi / 2, 1e-14);
}

TEST(IndexedPolyCurve, CountsAsPlanarInSpaceWithoutHeights) {
  const auto flat = curve(Points3d{{0, 0, 0}, {4, 0, 0}, {2, 2, 0}}, domeSegments);
  EXPECT_FALSE(flat->is2d());
  EXPECT_EQ(flat->curve2d(params, {}, {}, false),
            curve(dome, domeSegments)->curve2d(params, {}, {}, false));
  EXPECT_FALSE(curve(Points3d{{0, 0, 0}, {4, 0, 1}, {2, 2, 0}})->curve2d(params, {}, {}, false));
}

TEST(IndexedPolyCurve, ReportsSegmentsThatMakeNoSense) {
  const char* const chain =
      "By formal proposition of FcIndexedPolyCurve, the last index of a segment (execpt the last "
      "segment) must equal the first index of the next segment";
  const char* const badLine = "Invalid indices contained in this LineIndex segment";
  const char* const badArc = "Invalid indices contained in this ArcSegment segment";
  const struct {
    Segments segments;
    std::vector<test::ExpectedAssert> asserts;
    std::size_t points;
  } cases[] = {
      {{line({1, 2}), line({3, 4})}, {chain}, 3},  // joined all the same
      {{line({1, 5})}, {badLine}, 0},
      {{line({0, 1})}, {badLine}, 0},
      {{line({1})},
       {"By definition of IfcLineIndex, there must at least be 2 indexes (for start and end point "
        "of line)"},
       1},
      {{arc(1, 2, 9)}, {badArc}, 0},
      {{arc(1, 2, -1), line({1, 2})}, {badArc, chain}, 2},
      {{arc(1, 1, 2)}, {"Expect discretization of circular arc"}, 0},
      {{line({1, 2}), FcSegmentIndexSelect()},
       {chain, "detected a segments which is neither of type LineIndex nor ArcIndex"},
       2}};
  for (const auto& test : cases) {
    const ExpectAsserts expected(test.asserts);
    const auto broken = curve(Points2d{{0, 0}, {1, 0}, {1, 1}, {0, 1}}, test.segments);
    EXPECT_EQ(pointsOf(*broken).size(), test.points);
  }
}

TEST(IndexedPolyCurve, KeepsItsLastPointWhereTheArcBackToTheFirstOneIsNone) {
  const auto rectangle =
      curve(Points2d{{0, 0}, {4, 0}, {4, 3}, {0, 3}, {0, 1}}, {{line({1, 2, 3, 4}), arc(4, 5, 1)}});
  const ExpectAsserts expected({"Expect discretization of circular arc"});
  EXPECT_EQ(rectangle->closedCurve2dGet(params), (Points2d{{0, 0}, {4, 0}, {4, 3}, {0, 3}}));
}

TEST(IndexedPolyCurve, ReportsWhatItCannotDraw) {
  const ExpectAsserts expected(
      {"There are less than two points: cannot draw a (closed or open) polygonal curve",
       "For a closed polygonal curve, there must at least be 3 points (excluding the duplicated "
       "start/end point",
       "By informal proposition of IfcIndexedPolyCurve, there must not be consecutive points which "
       "are equal",
       "There is not point list defined.", "There is not point list defined.",
       "There is not point list defined.",
       "FcIndexedPolyCurve::curve2d not implemented for trimming",
       "FcIndexedPolyCurve::curve2d not implemented for reverse", "Invalid IfcIndexedPolyCurve",
       "Invalid IfcIndexedPolyCurve"});
  EXPECT_TRUE(RecordedLines(*curve(Points2d{{0, 0}})).polylines.empty());
  EXPECT_TRUE(RecordedLines(*curve(Points2d{{0, 0}, {1, 0}, {0, 0}})).polygons.empty());
  EXPECT_EQ(RecordedLines(*curve(Points2d{{0, 0}, {0, 0}, {1, 0}, {1, 0}})).polylines.size(), 1u);
  const FcIndexedPolyCurve empty;
  EXPECT_TRUE(RecordedLines(empty).polylines.empty());
  EXPECT_FALSE(empty.isClosed());
  EXPECT_FALSE(curve(Points2d{})->curve2d(params, {}, {}, false));
  EXPECT_FALSE(curve(dome)->curve2d(params, at(0), {}, true));
  EXPECT_TRUE(curve(dome, Segments{line({1, 9})})->parametricSegments().empty());
  EXPECT_TRUE(curve(Points2d{{0, 0}, {1, 1}, {2, 2}}, Segments{arc(1, 2, 3)})
                  ->parametricSegments()
                  .empty());
  EXPECT_THROW(curve(dome, Segments{FcSegmentIndexSelect()})->parametricSegments(), exception);
}

TEST(IndexedPolyCurve, IsBuiltOfLinesAndArcs) {
  FcIndexedPolyCurve triangle;
  triangle.startAt({1, 1});
  triangle.lineTo({2, 0});
  triangle.lineTo({0, 2});
  triangle.closeWithLine();
  EXPECT_FALSE(triangle.Segments());
  EXPECT_EQ(triangle.closedCurve2dGet(params), (Points2d{{1, 1}, {3, 1}, {3, 3}}));

  FcIndexedPolyCurve path;
  path.startAt({0, 0});
  path.lineTo({3, 0});
  path.arcTo({1, 1}, 1, true);
  path.lineTo({0, 3});
  path.lineTo({-3, 0});
  path.arcTo({-1, -1}, 1, false);  // a notch
  path.closeWithLine();
  EXPECT_EQ(textOf(*path.Segments()), "line 1 2, arc 2 3 4, line 4 5 6, arc 6 7 8, line 8 1");
  const auto& list = static_cast<const FcCartesianPointList2D&>(*path.Points());
  EXPECT_LT(list.point2d(2).distance({3 + std::sqrt(0.5), 1 - std::sqrt(0.5)}), 1e-15);
  const auto ring = path.closedCurve2dGet(params);
  ASSERT_TRUE(ring);
  const double quarter = 18 * std::sin(pi / 36) / 2;  // the sector in 18 segments
  EXPECT_NEAR(math::Polygon2d(*ring).signedArea(), 16 - (1 - quarter) - quarter, 1e-12);
}

TEST(IndexedPolyCurve, BeginsAndEndsWithArcs) {
  FcIndexedPolyCurve circle;
  circle.startAt({1, 0});
  circle.arcTo({-2, 0}, 1, true);
  circle.closeWithArc(1, true);
  EXPECT_EQ(textOf(*circle.Segments()), "arc 1 2 3, arc 3 4 1");
  EXPECT_EQ(circle.Points()->size(), 4u);
  EXPECT_EQ(circle.closedCurve2dGet(params)->size(), 72u);
  FcIndexedPolyCurve shallow;  // a sweep of 0.2, less than an eighth of a turn
  shallow.startAt({std::cos(0.1), -std::sin(0.1)});
  shallow.arcTo({0, 2 * std::sin(0.1)}, 1, true);
  EXPECT_NEAR(shallow.parametricSegments()[0].first, 0.2, 1e-12);
  FcIndexedPolyCurve tooFar;
  tooFar.startAt({0, 0});
  tooFar.arcTo({10, 0}, 1, true);
  EXPECT_EQ(pointsOf(tooFar), (Points3d{{0, 0, 0}, {10, 0, 0}}));
}

TEST(IndexedPolyCurve, AsksForABeginning) {
  const char* const asked =
      "This function should only be called after a sequence of beginAt, lineTo and arcTo";
  FcIndexedPolyCurve path;
  const ExpectAsserts expected({asked, asked, "Point list not should exist"});
  path.closeWithLine();
  path.closeWithArc(1, true);
  EXPECT_EQ(path.Points(), nullptr);
  path.startAt({0, 0});
  path.startAt({1, 0});
  EXPECT_EQ(path.Points()->points(), (Points3d{{1, 0, 0}}));
}

TEST(IndexedPolyCurve, RoundsTheCornersOfAPath) {
  FcIndexedPolyCurve pipe;
  pipe.setRounded(1, {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {4, 4, 4}});
  EXPECT_EQ(textOf(*pipe.Segments()), "line 1 2, arc 2 3 4, line 4 5, arc 5 6 7, line 7 8");
  const double in = 1 - std::sqrt(0.5);
  const Points3d expected{{0, 0, 0}, {3, 0, 0},       {4 - in, in, 0}, {4, 1, 0},
                          {4, 3, 0}, {4, 4 - in, in}, {4, 4, 1},       {4, 4, 4}};
  EXPECT_LT(deviation(pipe.Points()->points(), expected), 1e-15);
  EXPECT_NEAR(lengthOf(pointsOf(pipe)), 8 + 72 * std::sin(pi / 72), 1e-12);  // in 18 segments each
}

TEST(RoundedPath, KeepsCornersThatCannotBeRounded) {
  const std::pair<Points3d, double> cases[] = {
      {{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, 1}, {{{0, 0, 0}, {1, 0, 0}, {0, 0, 0}}, 1},
      {{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}, 0}, {{{0, 0, 0}, {1, 0, 0}}, 1},
      {{{0, 0, 0}, {0, 0, 0}, {1, 1, 0}}, 1}, {{{0, 0, 0}, {1, 0, 0}, {1, NAN, 0}}, 1}};
  for (const auto& [corners, radius] : cases) {
    const auto path = RoundedPath::through(corners, radius);
    EXPECT_EQ(path.pieces.size(), corners.size() - 1);
    for (const auto& piece : path.pieces)
      EXPECT_TRUE(std::holds_alternative<RoundedPath::Line>(piece));
  }
  EXPECT_TRUE(RoundedPath::through({}, 1).pieces.empty());
}

TEST(RoundedPath, NeverRunsBackOnCrowdedCorners) {
  const Points3d zigzag{{0, 0, 0}, {1, 0, 0}, {1, 0.2, 0}, {0, 0.2, 0}, {0, 0.4, 0.3}, {2, 1, 0}};
  const auto path = RoundedPath::through(zigzag, 10);
  for (const auto& piece : path.pieces) {
    const auto* arc = std::get_if<RoundedPath::Arc>(&piece);
    if (!arc) continue;
    const auto at = [&](std::size_t i) {
      return path.points[static_cast<std::size_t>((*arc)[i] - 1)];
    };
    EXPECT_LT(std::abs(at(0).distance(at(1)) - at(1).distance(at(2))), 1e-12);
    EXPECT_GT((at(1) - at(0)).dot(at(2) - at(1)), 0);
  }
  EXPECT_EQ(path.points.back(), zigzag.back());
}

}  // namespace
}  // namespace qor::fc::resource::geometry
