#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "Fc/Model/NotImplemented.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Resource/Profile/FcArbitraryProfileDefWithVoids.h"
#include "Fc/Resource/Profile/FcCenterLineProfileDef.h"
#include "Fc/Resource/Profile/FcCircleHollowProfileDef.h"
#include "Fc/Resource/Profile/FcCompositeProfileDef.h"
#include "Fc/Resource/Profile/FcMirroredProfileDef.h"
#include "Fc/Resource/Profile/FcRectangleProfileDef.h"
#include "Fc/Shapes/CenterLineRing.h"
#include "Fc/Shapes/RectangleContour.h"
#include "Qor/Draw/PolygonOrientation.h"
#include "Qor/Math/Polygon.h"
#include "Tests/Fc/Geometry/Items.h"
#include "Tests/Fc/Geometry/ProfileCases.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::profile {
namespace {

using generate::draw::Profile2D;
using qor::test::Dimensions;
using qor::test::makeProfile;
using qor::test::planarPosition;
using qor::test::ProfileCase;
using namespace math;
using qor::test::ExpectAsserts;
using std::numbers::pi;

const FcParams kParams{qor::test::sixtyFour()};
const math::CurveDiscretization kSixteen(1, 16, 16);

double signedArea(const std::vector<Profile2D>& profiles) {
  double area = 0;
  for (const Profile2D& profile : profiles)
    for (const auto& contour : profile.contours()) area += Polygon2d(contour).signedArea();
  return area;
}

double side(const Point2d& a, const Point2d& b, const Point2d& p) { return (b - a).cross(p - a); }

/// No two edges of all contours cross or touch, but for neighbours at their common point.
bool crossesItself(const Profile2D& profile) {
  std::vector<std::pair<Point2d, Point2d>> edges;
  for (const auto& contour : profile.contours())
    for (std::size_t i = 0; i < contour.size(); ++i)
      edges.emplace_back(contour[i], contour[(i + 1) % contour.size()]);
  for (std::size_t i = 0; i < edges.size(); ++i)
    for (std::size_t j = 0; j < i; ++j) {
      const auto& [a, b] = edges[i];
      const auto& [c, d] = edges[j];
      if (b == c || a == d) continue;
      if (side(a, b, c) * side(a, b, d) <= 0 && side(c, d, a) * side(c, d, b) <= 0) {
        const bool collinear = side(a, b, c) == 0 && side(a, b, d) == 0;
        if (!collinear) return true;
      }
    }
  return false;
}

std::shared_ptr<geometry::FcPolyline> polyline(const std::vector<Point2d>& points,
                                               bool closed = true) {
  return geometry::polyline(points, closed);
}

TEST(Profiles, HaveTheAreaOfTheClosedFormulaInBothSensesAndDoNotCrossThemselves) {
  const ExpectAsserts none;
  for (const ProfileCase& shape : qor::test::profileCases())
    for (const double scale : {0.01, 1.0, 40.0})
      for (const auto& position : {std::shared_ptr<geometry::FcAxis2Placement2D>(),
                                   planarPosition(7, -3, 0), planarPosition(-20, 30, 2)}) {
        SCOPED_TRACE(testing::Message() << shape.ifcName << " times " << scale);
        const auto profile = std::static_pointer_cast<FcParameterizedProfileDef>(
            makeProfile(shape.ifcName, shape.dimensions, scale));
        profile->setPosition(position);
        const auto areas = profile->closedProfile(kParams);
        ASSERT_EQ(areas.size(), 1u);
        const double expected = shape.area(qor::test::piOfSixtyFour()) * scale * scale;
        EXPECT_NEAR(signedArea(areas), expected, 1e-9 * expected + 1e-13);
        EXPECT_NEAR(signedArea(profile->reversedClosedProfile(kParams)), -expected,
                    1e-9 * expected + 1e-13);
        EXPECT_FALSE(crossesItself(areas[0]));
        for (const bool ccw : {true, false}) {
          const auto enforced = profile->closedProfileWithEnforcedOrientation(kParams, ccw);
          const auto& contours = enforced.at(0).contours();
          for (std::size_t i = 0; i < contours.size(); ++i)
            EXPECT_EQ(generate::draw::isCounterClockwisePolygon(contours[i]), ccw == (i == 0));
        }
      }
}

TEST(Profiles, AreMovedAndTurnedByTheirPosition) {
  for (const ProfileCase& shape : qor::test::profileCases()) {
    if (std::string(shape.ifcName) == "IfcTrapeziumProfileDef") continue;  // is moved alone
    const auto profile = std::static_pointer_cast<FcParameterizedProfileDef>(
        makeProfile(shape.ifcName, shape.dimensions));
    const auto plain = profile->closedProfile(kParams).at(0).contours();
    profile->setPosition(planarPosition(5, 6, pi / 3));
    const auto placed = profile->closedProfile(kParams).at(0).contours();
    const Matrix2d frame = Matrix2d::createRotate(pi / 3) * Matrix2d::createTranslation({5, 6});
    ASSERT_EQ(plain.size(), placed.size());
    for (std::size_t c = 0; c < plain.size(); ++c) {
      ASSERT_EQ(plain[c].size(), placed[c].size()) << shape.ifcName;
      for (std::size_t i = 0; i < plain[c].size(); ++i)
        EXPECT_LT((plain[c][i] * frame).distance(placed[c][i]), 1e-9) << shape.ifcName;
    }
  }
}

TEST(Profiles, AsCurvesSpanTheSameAreaWhereTheyKeepTheirFillets) {
  for (const ProfileCase& shape : qor::test::profileCases()) {
    const std::string name = shape.ifcName;
    if (name == "IfcEllipseProfileDef" || name == "IfcTrapeziumProfileDef") {
      const auto profile = makeProfile(name, shape.dimensions);
      const ExpectAsserts expected(
          {"generateIndexedPolycurve() not implemented for class: " + runTimeTypeName(*profile)});
      EXPECT_EQ(profile->getAsIndexedPolyCurves().size(), 1u);
      continue;
    }
    if (name == "IfcRoundedRectangleProfileDef" || shape.dimensions.size() == 5) continue;
    double area = 0;
    for (const auto& curve : makeProfile(name, shape.dimensions)->getAsIndexedPolyCurves()) {
      const auto points = curve->curve2d(kParams, {}, {}, false);
      ASSERT_TRUE(points);
      const double ring = Polygon2d(*points).signedArea();
      area += area == 0 ? ring : -ring;
    }
    EXPECT_NEAR(area, shape.area(qor::test::piOfSixtyFour()), 1e-9) << name;
  }
}

TEST(Profiles, HaveSoftEdgesAlongTheirArcsAlone) {
  const std::string sharp = "OverallWidth 1, OverallDepth 2, WebThickness 0.1, FlangeThickness 0.2";
  const std::string rounded = sharp + ", FilletRadius 0.1";
  const struct {
    const char* ifcName;
    const char* dimensions;
    std::size_t points, soft;
  } cases[] = {{"IfcIShapeProfileDef", sharp.c_str(), 12, 0},
               {"IfcIShapeProfileDef", rounded.c_str(), 8 + 4 * 17, 4 * 16},
               {"IfcCircleProfileDef", "Radius 1", 64, 64}};
  for (const auto& test : cases) {
    const auto areas = makeProfile(test.ifcName, test.dimensions)->closedProfile(kParams);
    const std::size_t points = areas.at(0).contours().at(0).size();
    EXPECT_EQ(points, test.points);
    std::size_t soft = 0;
    for (std::size_t i = 0; i < points; ++i) soft += areas[0].isSoft(0, i);
    EXPECT_EQ(soft, test.soft);
  }
  const auto contour = contourWithRoundedCorners(Matrix2d::createRotate(0.3), 2, 1, 0.5,
                                                 ContourOrientation::counterClockwise, kSixteen);
  ASSERT_EQ(contour.points.size(), 4 * 5u);
  for (std::size_t i = 0; i < contour.flags.size(); ++i)
    EXPECT_EQ(contour.flags[i], i % 5 != 0 && i % 5 != 4) << i;
}

TEST(Profiles, HaveTheBoxOfTheirDimensionsAroundTheirPosition) {
  const struct {
    const char* ifcName;
    const char* dimensions;
    double xHalf, yHalf;
  } boxes[] = {
      {"IfcRectangleProfileDef", "XDim 2, YDim 1", 1, 0.5},
      {"IfcIShapeProfileDef", "OverallWidth 1, OverallDepth 2", 0.5, 1},
      {"IfcLShapeProfileDef", "Depth 2, Width 1", 0.5, 1},
      {"IfcLShapeProfileDef", "Depth 2", 1, 1},
      {"IfcTShapeProfileDef", "Depth 2, FlangeWidth 1", 0.5, 1},
      {"IfcZShapeProfileDef", "Depth 2, FlangeWidth 1, WebThickness 0.2", 0.9, 1},
      {"IfcCShapeProfileDef", "Depth 2, Width 1", 0.5, 1},
  };
  const ExpectAsserts expected(
      {"doGetPlanarBox(const qor::fc::FcParams&) not implemented for class: class "
       "qor::fc::resource::profile::FcCircleProfileDef"});
  for (const auto& box : boxes) {
    const auto profile = makeProfile(box.ifcName, box.dimensions);
    std::static_pointer_cast<FcParameterizedProfileDef>(profile)->setPosition(
        planarPosition(3, 4, 1));
    EXPECT_EQ(profile->planarBox(kParams),
              Extent2d({3 - box.xHalf, 4 - box.yHalf}, {3 + box.xHalf, 4 + box.yHalf}))
        << box.ifcName;
  }
  const auto points = makeProfile("IfcCircleProfileDef", "Radius 2")->planarBox(kParams);
  EXPECT_TRUE(points && points->maximum().isNear({2, 2})) << "that of its points";
}

TEST(ArbitraryProfile, TakesClosedCurvesAlone) {
  const auto profile = std::make_shared<FcArbitraryProfileDefWithVoids>();
  const char* const notClosed = "Expected OuterCurve() to return a closed curve.";
  const ExpectAsserts expected({notClosed, "Expect OuterCurve() to be set.", notClosed});
  EXPECT_TRUE(profile->closedProfile(kParams).empty());
  EXPECT_FALSE(profile->planarBox(kParams));
  profile->setOuterCurve(polyline({{0, 0}, {4, 0}, {4, 4}}, false));
  EXPECT_TRUE(profile->closedProfile(kParams).empty());
  profile->setOuterCurve(polyline({{0, 0}, {4, 0}, {4, 4}, {0, 0}}, false));
  EXPECT_EQ(profile->closedProfile(kParams).at(0).contours().at(0).size(), 3u)
      << "as good with two points at the place where it closes";
  profile->setOuterCurve(polyline({{0, 0}, {0, 4}, {4, 4}, {4, 0}}));
  profile->setInnerCurves(
      {polyline({{1, 1}, {2, 1}, {2, 2}}), polyline({{1, 3}, {2, 3}, {2, 3.5}}, false), nullptr});
  const auto areas = profile->closedProfileWithEnforcedOrientation(kParams, true);
  ASSERT_EQ(areas.at(0).contours().size(), 2u);
  EXPECT_DOUBLE_EQ(signedArea(areas), 15.5);
  EXPECT_EQ(profile->planarBox(kParams), Extent2d({0, 0}, {4, 4}));
  profile->transform2d(Matrix2d::createScale(2, 2));
  EXPECT_DOUBLE_EQ(signedArea(profile->closedProfileWithEnforcedOrientation(kParams, true)), 62);
}

TEST(DerivedProfile, MirroredIsTurnedToTheSenseAskedFor) {
  const auto parent = std::make_shared<FcArbitraryClosedProfileDef>();
  parent->setOuterCurve(polyline({{1, 0}, {3, 0}, {3, 1}}));
  const auto mirrored = std::make_shared<FcMirroredProfileDef>();
  EXPECT_TRUE(mirrored->closedProfile(kParams).empty());
  mirrored->setParentProfile(parent);
  EXPECT_DOUBLE_EQ(signedArea(mirrored->closedProfile(kParams)), -1);
  const auto enforced = mirrored->closedProfileWithEnforcedOrientation(kParams, true);
  EXPECT_DOUBLE_EQ(signedArea(enforced), 1);
  EXPECT_EQ(enforced.at(0).contours().at(0), (std::vector<Point2d>{{-3, 1}, {-3, 0}, {-1, 0}}));
}

TEST(CompositeProfile, GathersItsMembersAndEndsWhereItContainsItself) {
  const auto composite = std::make_shared<FcCompositeProfileDef>();
  const auto rectangle = makeProfile("IfcRectangleProfileDef", "XDim 2, YDim 1");
  const auto derived = std::make_shared<FcMirroredProfileDef>();
  derived->setParentProfile(composite);
  composite->setProfiles({rectangle, nullptr, derived});
  const ExpectAsserts expected({"Circular dependency in profile"});
  EXPECT_EQ(composite->closedProfile(kParams).size(), 1u);
  derived->setParentProfile(nullptr);  // or they would keep each other alive
}

TEST(CenterLineProfile, IsABandOfTheOffsetToEitherSide) {
  FcCenterLineProfileDef profile;
  const ExpectAsserts expected(
      {"Expected FcCenterLineProfileDef to have a Curve",
       "Expected FcCenterLineProfileDef::Thickness to be a positive number"});
  EXPECT_TRUE(profile.closedProfile(kParams).empty());
  profile.setCurve(polyline({{0, 0}, {5, 0}}, false));
  EXPECT_TRUE(profile.closedProfile(kParams).empty());
  profile.setThickness(1.0);
  EXPECT_DOUBLE_EQ(signedArea(profile.closedProfile(kParams)), 10);

  EXPECT_EQ(centerLineRing({{0, 0}, {0, 3}}, 1),
            (std::vector<Point2d>{{1, 0}, {1, 3}, {-1, 3}, {-1, 0}}));
  // What a right angle takes on its inner side it gives on its outer one.
  const auto angle = centerLineRing({{0, 0}, {3, 0}, {3, 0}, {3, 4}}, 0.5);
  EXPECT_EQ(angle.size(), 6u);
  EXPECT_NEAR(Polygon2d(angle).signedArea(), 7, 1e-12);
  for (const Point2d& point : centerLineRing({{0, 0}, {3, 0}, {1, 0}}, 0.5))
    EXPECT_LE(point.distance({0, 0}), 4) << "where the line folds back";
  EXPECT_TRUE(centerLineRing({{1, 1}, {1, 1}}, 0.5).empty());
}

TEST(RectangleProfile, TakesRotationIntoItsPositionAndScaleIntoItsDimensions) {
  FcRectangleProfileDef profile;
  profile.setXDim(2.0);
  profile.setYDim(1.0);
  profile.transform2d({});
  EXPECT_FALSE(profile.Position());
  profile.transform2d(Matrix2d({0, 3}, {-2, 0}, {1, 1}));
  ASSERT_TRUE(profile.Position());
  EXPECT_NEAR(profile.XDim(), 6, 1e-12);
  EXPECT_NEAR(profile.YDim(), 2, 1e-12);
  EXPECT_TRUE(profile.validPosition().x().isNear({0, 1}));
  EXPECT_TRUE(profile.validPosition().origin().isNear({1, 1}));
}

/// Zero, negative, huge and missing numbers in each place, one after the other.
TEST(Profiles, WithBadDimensionsReportThemAndStayFinite) {
  const bool enabled = Assert::isEnabled();
  Assert::setEnabled(false);
  const double inf = std::numeric_limits<double>::infinity(),
               nan = std::numeric_limits<double>::quiet_NaN();
  for (const ProfileCase& shape : qor::test::profileCases())
    for (std::size_t i = 0; i < shape.dimensions.size(); ++i)
      for (const double value : {0.0, -1.0, 1e9, 1e-12, nan, inf}) {
        Dimensions dimensions = shape.dimensions;
        dimensions[i].second = value;
        const auto profile = makeProfile(shape.ifcName, dimensions);
        profile->planarBox(kParams);
        for (const Profile2D& area : profile->closedProfileWithEnforcedOrientation(kParams, true))
          for (const auto& contour : area.contours())
            for (const Point2d& point : contour)
              EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y)) << shape.ifcName;
      }
  Assert::setEnabled(enabled);
}

TEST(Profiles, TellWhichRadiusDoesNotFit) {
  const ExpectAsserts expected(
      {"By formal proposition, InnerFilletRadius must not be larger than YDim / 2 - WallThickness",
       "Assertion failed: Expect only to be called if roundingRadius <= yDimHalf",
       "Assertion failed: Expect only to be called if roundingRadius > 0.0",
       "By formal proposition, the wall thickness must be strictly smaller than the radius"});
  makeProfile("IfcRectangleHollowProfileDef",
              "XDim 4, YDim 1, WallThickness 0.1, InnerFilletRadius 0.5")
      ->closedProfile(kParams);
  const auto sharp =
      contourWithRoundedCorners({}, 2, 1, 0, ContourOrientation::counterClockwise, kSixteen);
  EXPECT_EQ(sharp.points.size(), 4u);
  const auto tube = makeProfile("IfcCircleHollowProfileDef", "Radius 1, WallThickness 1");
  EXPECT_EQ(tube->closedProfile(kParams).at(0).contours().size(), 1u) << "a disk";
}

}  // namespace
}  // namespace qor::fc::resource::profile
