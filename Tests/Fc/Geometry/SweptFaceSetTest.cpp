#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "Fc/Shapes/DirectrixSweep.h"
#include "Fc/Shapes/ExtrudedFaceSet.h"
#include "Fc/Shapes/FilletedPath.h"
#include "Fc/Shapes/RevolvedFaceSet.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using namespace math;
using std::numbers::pi;
using test::ExpectAsserts;
using test::isClosedSolidOfVolume;

const math::CurveDiscretization kFine(1e-6, 64, 64);

Profile2D::Contour rectangle(double x0, double y0, double x1, double y1) {
  return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

Profile2D::Contour reversed(Profile2D::Contour contour) {
  return {contour.rbegin(), contour.rend()};
}

/// 2 by 1 with a hole of 1 by 0.5: area 1.5, centre at (x, y).
Profile2D frameAt(double x, double y, bool soft = false) {
  return Profile2D({rectangle(x - 1, y - 0.5, x + 1, y + 0.5),
                    reversed(rectangle(x - 0.5, y - 0.25, x + 0.5, y + 0.25))},
                   soft);
}

/// The volume that a sweep around in `segments` straight steps has in place of `angle`.
double chordAngle(double angle, std::size_t segments) {
  const double step = angle / static_cast<double>(segments);
  return static_cast<double>(segments) * std::sin(step);
}

TEST(ExtrudedFaceSet, SharesThePointsOfSharpEdgesAndKeepsSidesSoftWithAFlagAtEitherEnd) {
  const ExpectAsserts expected({"Invalid curved indices", "Invalid curved indices"});
  const struct {
    Profile2D::EdgeFlags flags;
    std::size_t points, soft;
  } cases[] = {{{{false, false, false, false}}, 8, 0},
               {{{false, true, false, false}}, 16, 2},
               {{{true, true, true}}, 0, 0}};  // an edge without a flag is taken for sharp
  for (const auto& test : cases) {
    Profile2D profile({rectangle(0, 0, 2, 1)}, Profile2D::EdgeFlags(test.flags));
    const PolygonalFaceSetOpenGL set = extrudedFaceSet(profile, {0.1, 0, -1});
    EXPECT_TRUE(isClosedSolidOfVolume({set}, 2, 1e-12));
    if (test.points == 0) continue;
    EXPECT_EQ(set.coordinates.size(), test.points);
    ASSERT_EQ(set.faces.size(), 6u);
    std::size_t soft = 0;
    for (std::size_t i = 0; i < set.faces.size(); ++i) {
      if (set.isHard(i)) continue;
      ++soft;
      const auto isFlagged = [&](std::uint32_t point) {
        return set.coordinates[point].isNear({2, 0, 0});
      };
      EXPECT_TRUE(std::any_of(set.faces[i].outer.begin(), set.faces[i].outer.end(), isFlagged));
    }
    EXPECT_EQ(soft, test.soft);
  }
}

TEST(ExtrudedFaceSet, TapersToTheVolumeOfAFrustum) {
  for (const double height : {3.0, -3.0})
    for (const bool soft : {false, true}) {
      Profile2D start({rectangle(-2, -2, 2, 2)}, soft);
      Profile2D end({rectangle(-1, -1, 1, 1)}, soft);
      const auto sets = taperedExtrudedFaceSets(start, end, {0, 0, height});
      EXPECT_EQ(sets.size(), soft ? 2u : 1u);
      EXPECT_TRUE(isClosedSolidOfVolume(sets, 3.0 / 3 * (16 + 4 + 8), 1e-12));
    }
}

TEST(RevolvedFaceSet, HasTheVolumeThatPappusSays) {
  const ExpectAsserts none;
  const struct {
    const char* what;
    double angle;
    RevolutionAxis axis;
    Profile2D profile;
    double area;
    double radius;  ///< of the centre of the area
  } turns[] = {
      {"left of the axis, a quarter", pi / 2, {{0, 0}, {0, 1}}, frameAt(-3, 1), 1.5, 3},
      {"right of the axis, a quarter", pi / 2, {{0, 0}, {0, 1}}, frameAt(3, 1), 1.5, 3},
      {"right of a downward axis, three quarters",
       pi * 1.5,
       {{1, 5}, {0, -1}},
       frameAt(-3, 1),
       1.5,
       4},
      {"full turn with a hole", 2 * pi, {{0, 0}, {0, 1}}, frameAt(3, 1), 1.5, 3},
      {"full turn, soft", 2 * pi, {{0, 0}, {0, 1}}, frameAt(3, 1, true), 1.5, 3},
      {"half a turn, soft", pi, {{0, 0}, {1, 0}}, frameAt(3, 4, true), 1.5, 4},
      {"touching the axis along an edge",
       2 * pi,
       {{0, 0}, {0, 1}},
       Profile2D({rectangle(0, 0, 2, 1)}),
       2,
       1},
      {"touching a slanted axis",
       pi,
       {{0, 0}, {0.6, 0.8}},
       Profile2D({{{0, 0}, {0.8, -0.6}, {0.8 + 0.6, 0.8 - 0.6}, {0.6, 0.8}}}),
       1,
       0.5},
  };
  for (const auto& turn : turns) {
    const auto set = revolvedFaceSet(turn.profile, turn.axis, turn.angle, kFine);
    ASSERT_TRUE(set) << turn.what;
    const double outer =
        orthogonalDistanceToFurthestPointInPolygon(turn.axis, turn.profile.contours().front());
    const double chords = chordAngle(turn.angle, kFine.numberOfArcSegments(outer, turn.angle));
    EXPECT_TRUE(isClosedSolidOfVolume({*set}, turn.area * turn.radius * chords, 1e-9)) << turn.what;
  }
}

TEST(RevolvedFaceSet, TellsAProfileOnTheAxisOrAcrossIt) {
  {
    const ExpectAsserts expected(
        {"All points of the profile's outer contour seem to lie on the revolution axis"});
    EXPECT_FALSE(
        revolvedFaceSet(Profile2D({{{0, 0}, {0, 1}, {0, 2}}}), {{0, 0}, {0, 1}}, 1, kFine));
  }
  const ExpectAsserts expected(
      {"By informal proposition, the AxisLine shall not intersect the interior of the SweptArea"});
  EXPECT_TRUE(revolvedFaceSet(Profile2D({rectangle(-1, 0, 2, 1)}), {{0, 0}, {0, 1}}, 1, kFine));
}

TEST(RevolvedFaceSet, TapersFromTheFirstProfileToTheLast) {
  const double angle = pi / 2;
  for (const double side : {-1.0, 1.0}) {
    const RevolutionAxis axis{{0, 0}, {0, 1}};
    const Profile2D start({rectangle(3 * side - 0.5, 0, 3 * side + 0.5, 1)});
    const Profile2D end({rectangle(3 * side - 0.25, 0, 3 * side + 0.25, 0.5)});
    const auto set = taperedRevolvedFaceSet(start, end, axis, angle, kFine);
    ASSERT_TRUE(set);
    // The area at fraction t is (1 - t/2)^2, at radius 3: integral 7/12 of the full body's.
    EXPECT_TRUE(isClosedSolidOfVolume({*set}, 7.0 / 12 * 3 * angle, 0.01));
    const Matrix turn = Matrix::createYRotate(angle);
    for (const Point2d& corner : end.contours().front()) {
      const Point3d expected = Point3d(corner.x, corner.y, 0) * turn;
      bool found = false;
      for (std::size_t i = set->coordinates.size() - 4; i < set->coordinates.size(); ++i)
        found = found || set->coordinates[i].distance(expected) < 1e-12;
      EXPECT_TRUE(found);
    }
  }
}

TEST(SweptAlongPath, HasAreaTimesLengthAndARingAtEachCorner) {
  const ExpectAsserts none;
  const struct {
    const char* what;
    std::vector<Point3d> points;
    bool closed;
    double length;
    std::size_t rings;
  } paths[] = {
      {"one leg", {{0, 0, 0}, {3, 4, 0}}, false, 5, 2},
      {"upward, along the reference", {{0, 0, 0}, {0, 0, 2}}, false, 2, 2},
      {"a straight stretch", {{0, 0, 0}, {3, 0, 0}, {6, 0, 0}, {6, 6, 0}}, false, 12, 3},
      {"repeated points", {{0, 0, 0}, {0, 0, 0}, {6, 0, 0}, {6, 0, 0}, {6, 6, 0}}, false, 12, 3},
      {"out of the plane", {{0, 0, 0}, {6, 0, 0}, {6, 6, 0}, {6, 6, 6}}, false, 18, 4},
      {"closed", {{0, 0, 0}, {6, 0, 0}, {6, 6, 0}, {0, 6, 0}, {0, 0, 0}}, true, 24, 5},
  };
  for (const auto& path : paths)
    for (const bool soft : {false, true}) {
      // Centred, so that what a corner takes on its inner side it gives on its outer one.
      const Profile2D profile = frameAt(0, 0, soft);
      const auto set = sweptAlongPath(profile, path.points, {0, 0, 1}, {}, path.closed);
      ASSERT_TRUE(set) << path.what;
      EXPECT_TRUE(isClosedSolidOfVolume({*set}, 1.5 * path.length, 1e-9)) << path.what;
      const std::size_t ends = soft && !path.closed ? 2 : 0;
      EXPECT_EQ(set->coordinates.size(), 8 * (path.rings + ends)) << path.what;
    }
}

TEST(SweptAlongPath, ClosesWhereItStartsOnAStraightStretch) {
  const std::vector<Point3d> path{{3, 0, 0}, {6, 0, 0}, {6, 6, 0}, {0, 6, 0}, {0, 0, 0}, {3, 0, 0}};
  {
    const ExpectAsserts none;
    const auto sharp = sweptAlongPath(frameAt(0, 0), path, {0, 0, 1}, {}, true);
    EXPECT_TRUE(sharp && isClosedSolidOfVolume({*sharp}, 1.5 * 24, 1e-9));
  }
  const ExpectAsserts expected({"hardEdgeFaceset.m_faces is empty"});
  const auto soft = sweptAlongPath(frameAt(0, 0, true), path, {0, 0, 1}, {}, true);
  EXPECT_TRUE(soft && isClosedSolidOfVolume({*soft}, 1.5 * 24, 1e-9));
}

TEST(SweptAlongPath, LaysTheProfilesXAxisAlongTheReference) {
  const Profile2D profile({rectangle(0, 0, 1, 0.1)});
  const Matrix frame = Matrix::createTranslation({0, 0, 10});
  const auto set = sweptAlongPath(profile, {{0, 0, 0}, {5, 0, 0}}, {0, 0.5, 1}, frame, false);
  ASSERT_TRUE(set);
  const double d = std::sqrt(1.25);
  EXPECT_LT(set->coordinates[1].distance({0, 0.5 / d, 10 + 1 / d}), 1e-12);
}

TEST(SweptAlongPath, TellsAPathThatIsTooShort) {
  const Profile2D profile({rectangle(0, 0, 1, 1)});
  const char* tooFew =
      "Diretrix is a closed curve with less than three distinct points, or open with less than two "
      "distinct points.";
  const ExpectAsserts expected(
      {"Should have Directrix curve with more than 1 point", tooFew, tooFew});
  EXPECT_FALSE(sweptAlongPath(profile, {{1, 1, 1}}, {0, 0, 1}, {}, false));
  EXPECT_FALSE(sweptAlongPath(profile, {{1, 1, 1}, {1, 1, 1}}, {0, 0, 1}, {}, false));
  EXPECT_FALSE(sweptAlongPath(profile, {{0, 0, 0}, {1, 0, 0}, {0, 0, 0}}, {0, 0, 1}, {}, true));
  EXPECT_FALSE(sweptAlongPath(profile, {{0, 0, 0}, {1, NAN, 0}}, {0, 0, 1}, {}, false));
}

TEST(FilletedPath, RoundsARightAngle) {
  const double radius = 0.5;
  const FilletedPath path = filletedPath({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {2, 3, 0}}, radius);
  ASSERT_EQ(path.points.size(), 5u);
  EXPECT_LT(path.points[1].distance({1.5, 0, 0}), 1e-12);
  const double toVertex = radius * (std::numbers::sqrt2 - 1) / std::numbers::sqrt2;
  EXPECT_LT(path.points[2].distance({2 - toVertex, toVertex, 0}), 1e-12);
  EXPECT_LT(path.points[3].distance({2, 0.5, 0}), 1e-12);
  using Kind = FilletedPath::Segment::Kind;
  EXPECT_EQ(path.segments,
            (std::vector<FilletedPath::Segment>{{Kind::line, 0}, {Kind::arc, 1}, {Kind::line, 3}}));
}

TEST(FilletedPath, KeepsTheCornerWhereThePathFoldsBack) {
  const FilletedPath path = filletedPath({{0, 0, 0}, {2, 0, 0}, {1, 0, 0}}, 0.1);
  EXPECT_EQ(path.points.size(), 3u);
  EXPECT_EQ(path.segments.size(), 2u);
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
