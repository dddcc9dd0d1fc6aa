#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcParameterizedProfileDef.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::test {

/// Names of attributes with their numbers, written as "XDim 2, YDim 1".
struct Dimensions : std::vector<std::pair<std::string, double>> {
  Dimensions(const char* text) {  // NOLINT(google-explicit-constructor): reads as a text
    std::istringstream in(text);
    std::string name, end;
    for (double number = 0; in >> name >> number; std::getline(in, end, ','))
      emplace_back(name, number);
  }
};

/// A profile with dimensions, by the name of its class.
inline std::shared_ptr<fc::resource::profile::FcProfileDef> makeProfile(
    const std::string& ifcName, const Dimensions& dimensions, double scale = 1) {
  const auto entity = fc::Factory::objectFromIfcName(StringHash::of(ifcName));
  for (const auto& [name, value] : dimensions)
    EXPECT_TRUE(entity->setLocalValue(fc::LocalValue(value * scale), object::PropertyId(name)))
        << name;
  return std::static_pointer_cast<fc::resource::profile::FcProfileDef>(entity);
}

inline std::shared_ptr<fc::resource::geometry::FcAxis2Placement2D> planarPosition(double x,
                                                                                  double y,
                                                                                  double angle) {
  auto position = std::make_shared<fc::resource::geometry::FcAxis2Placement2D>();
  position->setLocation(fc::resource::geometry::makePoint(math::Point2d(x, y)));
  position->setRefDirection(
      fc::resource::geometry::makeDirection(math::Vector2d(1, 0).rotate(angle)));
  return position;
}

/// A shape with dimensions and its closed formula.
struct ProfileCase {
  const char* ifcName;
  Dimensions dimensions;
  /// The area without roundings, and how many corners of radius 1 they take away (or, below 0,
  /// fill). A circle is its square without four corners.
  double sharpArea, corners = 0;

  /// When a circle of radius r has an area of `pi * r * r`: what the corners of its polygon span.
  double area(double pi) const { return sharpArea - corners * (1 - pi / 4); }
};

/// Circles of 64 corners, whatever their radius.
inline math::CurveDiscretization sixtyFour() { return {1e-3, 64, 64}; }
/// What takes the place of π in the areas of such polygons.
inline double piOfSixtyFour() { return 32 * std::sin(2 * 3.14159265358979323846 / 64); }

/// Every class of profiles with dimensions, with and without fillets.
inline std::vector<ProfileCase> profileCases() {
  return {
      {"IfcRectangleProfileDef", "XDim 2, YDim 1", 2},
      {"IfcRoundedRectangleProfileDef", "XDim 2, YDim 1, RoundingRadius 0.25", 2, 4 * 0.0625},
      {"IfcRoundedRectangleProfileDef", "XDim 2, YDim 1, RoundingRadius 0.5", 2, 4 * 0.25},
      {"IfcRoundedRectangleProfileDef", "XDim 1, YDim 1, RoundingRadius 0.5", 1, 4 * 0.25},
      {"IfcRectangleHollowProfileDef", "XDim 2, YDim 1, WallThickness 0.1", 2 - 1.8 * 0.8},
      {"IfcRectangleHollowProfileDef",
       "XDim 2, YDim 1, WallThickness 0.1, InnerFilletRadius 0.1, OuterFilletRadius 0.2",
       2 - 1.8 * 0.8, 4 * (0.04 - 0.01)},
      {"IfcCircleProfileDef", "Radius 0.7", 4 * 0.49, 4 * 0.49},
      {"IfcCircleHollowProfileDef", "Radius 0.7, WallThickness 0.1", 4 * (0.49 - 0.36),
       4 * (0.49 - 0.36)},
      {"IfcEllipseProfileDef", "SemiAxis1 2, SemiAxis2 0.5", 4, 4},
      {"IfcTrapeziumProfileDef", "BottomXDim 2, TopXDim 1, YDim 3, TopXOffset -0.5", 4.5},
      {"IfcIShapeProfileDef",
       "OverallWidth 1, OverallDepth 2, WebThickness 0.1, FlangeThickness 0.2", 0.4 + 1.6 * 0.1},
      {"IfcIShapeProfileDef",
       "OverallWidth 1, OverallDepth 2, WebThickness 0.1, FlangeThickness 0.2, FilletRadius 0.15",
       0.4 + 1.6 * 0.1, -4 * 0.0225},
      {"IfcAsymmetricIShapeProfileDef",
       "BottomFlangeWidth 2, OverallDepth 3, WebThickness 0.2, BottomFlangeThickness 0.3, "
       "BottomFlangeFilletRadius 0.2, TopFlangeWidth 1, TopFlangeThickness 0.1, "
       "TopFlangeFilletRadius 0.1",
       0.6 + 0.1 + 2.6 * 0.2, -2 * (0.04 + 0.01)},
      {"IfcLShapeProfileDef", "Depth 2, Thickness 0.2", 0.4 + 1.8 * 0.2},
      {"IfcLShapeProfileDef", "Depth 2, Width 1, Thickness 0.2, FilletRadius 0.1, EdgeRadius 0.05",
       0.2 + 1.8 * 0.2, 2 * 0.0025 - 0.01},
      {"IfcLShapeProfileDef", "Depth 2, Width 1, Thickness 0.2, EdgeRadius 0.2", 0.2 + 1.8 * 0.2,
       2 * 0.04},
      {"IfcTShapeProfileDef", "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1",
       0.1 + 1.9 * 0.2},
      {"IfcTShapeProfileDef",
       "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1, FilletRadius 0.1, "
       "FlangeEdgeRadius 0.05, WebEdgeRadius 0.04",
       0.1 + 1.9 * 0.2, 2 * (0.0025 + 0.0016 - 0.01)},
      {"IfcTShapeProfileDef",
       "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1, FlangeEdgeRadius 0.1, "
       "WebEdgeRadius 0.1",
       0.1 + 1.9 * 0.2, 2 * (0.01 + 0.01)},
      {"IfcUShapeProfileDef", "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1",
       0.2 + 1.8 * 0.2},
      {"IfcUShapeProfileDef",
       "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1, FilletRadius 0.1, "
       "EdgeRadius 0.05",
       0.2 + 1.8 * 0.2, 2 * (0.0025 - 0.01)},
      {"IfcZShapeProfileDef", "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1",
       0.2 + 1.8 * 0.2},
      {"IfcZShapeProfileDef",
       "Depth 2, FlangeWidth 1, WebThickness 0.2, FlangeThickness 0.1, FilletRadius 0.1, "
       "EdgeRadius 0.1",
       0.2 + 1.8 * 0.2},
      {"IfcCShapeProfileDef", "Depth 2, Width 1, WallThickness 0.1, Girth 0.3",
       2 - 0.8 * 1.8 - 0.1 * 1.4},
      {"IfcCShapeProfileDef",
       "Depth 2, Width 1, WallThickness 0.1, Girth 0.3, InternalFilletRadius 0.1",
       2 - 0.8 * 1.8 - 0.1 * 1.4},
  };
}

}  // namespace qor::test
