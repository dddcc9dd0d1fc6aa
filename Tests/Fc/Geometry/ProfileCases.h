#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcParameterizedProfileDef.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::fc::test {

using Dimensions = std::vector<std::pair<const char*, double>>;

template <class Class>
std::shared_ptr<Class> makeWith(const std::string& ifcName, const Dimensions& dimensions,
                                double scale = 1) {
  const auto entity = Factory::objectFromIfcName(StringHash::of(ifcName));
  for (const auto& [name, value] : dimensions)
    entity->setLocalValue(LocalValue(value * scale), object::PropertyId(name));
  return std::static_pointer_cast<Class>(entity);
}

/// A profile with dimensions, by the name of its class.
inline std::shared_ptr<resource::profile::FcProfileDef> makeProfile(const std::string& ifcName,
                                                                    const Dimensions& dimensions,
                                                                    double scale = 1) {
  return makeWith<resource::profile::FcProfileDef>(ifcName, dimensions, scale);
}

inline std::shared_ptr<resource::geometry::FcAxis2Placement2D> planarPosition(double x, double y,
                                                                              double angle) {
  auto position = std::make_shared<resource::geometry::FcAxis2Placement2D>();
  position->setLocation(resource::geometry::makePoint(math::Point2d(x, y)));
  position->setRefDirection(resource::geometry::makeDirection(math::Vector2d(1, 0).rotate(angle)));
  return position;
}

/// A shape with dimensions and its closed formula.
struct ProfileCase {
  const char* ifcName;
  Dimensions dimensions;
  /// The area when a circle of radius r has one of `pi * r * r`: what the corners of its polygon
  /// span.
  std::function<double(double pi)> area;
};

/// Circles of 64 corners, whatever their radius.
inline math::CurveDiscretization sixtyFour() { return {1e-3, 64, 64}; }
/// What takes the place of π in the areas of such polygons.
inline double piOfSixtyFour() { return 32 * std::sin(2 * 3.14159265358979323846 / 64); }

/// Every class of profiles with dimensions, with and without fillets.
inline std::vector<ProfileCase> profileCases() {
  // What a fillet of radius 1 fills, or an edge of radius 1 takes away.
  const auto corner = [](double pi) { return 1 - pi / 4; };
  return {
      {"IfcRectangleProfileDef", {{"XDim", 2}, {"YDim", 1}}, [](double) { return 2.0; }},
      {"IfcRoundedRectangleProfileDef",
       {{"XDim", 2}, {"YDim", 1}, {"RoundingRadius", 0.25}},
       [=](double pi) { return 2 - 4 * 0.0625 * corner(pi); }},
      {"IfcRoundedRectangleProfileDef",
       {{"XDim", 2}, {"YDim", 1}, {"RoundingRadius", 0.5}},
       [](double pi) { return 1 + pi / 4; }},
      {"IfcRoundedRectangleProfileDef",
       {{"XDim", 1}, {"YDim", 1}, {"RoundingRadius", 0.5}},
       [](double pi) { return pi / 4; }},
      {"IfcRectangleHollowProfileDef",
       {{"XDim", 2}, {"YDim", 1}, {"WallThickness", 0.1}},
       [](double) { return 2 - 1.8 * 0.8; }},
      {"IfcRectangleHollowProfileDef",
       {{"XDim", 2},
        {"YDim", 1},
        {"WallThickness", 0.1},
        {"InnerFilletRadius", 0.1},
        {"OuterFilletRadius", 0.2}},
       [=](double pi) { return 2 - 1.8 * 0.8 - 4 * (0.04 - 0.01) * corner(pi); }},
      {"IfcCircleProfileDef", {{"Radius", 0.7}}, [](double pi) { return 0.49 * pi; }},
      {"IfcCircleHollowProfileDef",
       {{"Radius", 0.7}, {"WallThickness", 0.1}},
       [](double pi) { return (0.49 - 0.36) * pi; }},
      {"IfcEllipseProfileDef",
       {{"SemiAxis1", 2}, {"SemiAxis2", 0.5}},
       [](double pi) { return pi; }},
      {"IfcTrapeziumProfileDef",
       {{"BottomXDim", 2}, {"TopXDim", 1}, {"YDim", 3}, {"TopXOffset", -0.5}},
       [](double) { return 4.5; }},
      {"IfcIShapeProfileDef",
       {{"OverallWidth", 1}, {"OverallDepth", 2}, {"WebThickness", 0.1}, {"FlangeThickness", 0.2}},
       [](double) { return 0.4 + 1.6 * 0.1; }},
      {"IfcIShapeProfileDef",
       {{"OverallWidth", 1},
        {"OverallDepth", 2},
        {"WebThickness", 0.1},
        {"FlangeThickness", 0.2},
        {"FilletRadius", 0.15}},
       [=](double pi) { return 0.4 + 1.6 * 0.1 + 4 * 0.0225 * corner(pi); }},
      {"IfcAsymmetricIShapeProfileDef",
       {{"BottomFlangeWidth", 2},
        {"OverallDepth", 3},
        {"WebThickness", 0.2},
        {"BottomFlangeThickness", 0.3},
        {"BottomFlangeFilletRadius", 0.2},
        {"TopFlangeWidth", 1},
        {"TopFlangeThickness", 0.1},
        {"TopFlangeFilletRadius", 0.1}},
       [=](double pi) { return 0.6 + 0.1 + 2.6 * 0.2 + 2 * (0.04 + 0.01) * corner(pi); }},
      {"IfcLShapeProfileDef",
       {{"Depth", 2}, {"Thickness", 0.2}},
       [](double) { return 0.4 + 1.8 * 0.2; }},
      {"IfcLShapeProfileDef",
       {{"Depth", 2},
        {"Width", 1},
        {"Thickness", 0.2},
        {"FilletRadius", 0.1},
        {"EdgeRadius", 0.05}},
       [=](double pi) { return 0.2 + 1.8 * 0.2 + (0.01 - 2 * 0.0025) * corner(pi); }},
      {"IfcLShapeProfileDef",
       {{"Depth", 2}, {"Width", 1}, {"Thickness", 0.2}, {"EdgeRadius", 0.2}},
       [=](double pi) { return 0.2 + 1.8 * 0.2 - 2 * 0.04 * corner(pi); }},
      {"IfcTShapeProfileDef",
       {{"Depth", 2}, {"FlangeWidth", 1}, {"WebThickness", 0.2}, {"FlangeThickness", 0.1}},
       [](double) { return 0.1 + 1.9 * 0.2; }},
      {"IfcTShapeProfileDef",
       {{"Depth", 2},
        {"FlangeWidth", 1},
        {"WebThickness", 0.2},
        {"FlangeThickness", 0.1},
        {"FilletRadius", 0.1},
        {"FlangeEdgeRadius", 0.05},
        {"WebEdgeRadius", 0.04}},
       [=](double pi) { return 0.1 + 1.9 * 0.2 + 2 * (0.01 - 0.0025 - 0.0016) * corner(pi); }},
      {"IfcTShapeProfileDef",
       {{"Depth", 2},
        {"FlangeWidth", 1},
        {"WebThickness", 0.2},
        {"FlangeThickness", 0.1},
        {"FlangeEdgeRadius", 0.1},
        {"WebEdgeRadius", 0.1}},
       [=](double pi) { return 0.1 + 1.9 * 0.2 - 2 * (0.01 + 0.01) * corner(pi); }},
      {"IfcUShapeProfileDef",
       {{"Depth", 2}, {"FlangeWidth", 1}, {"WebThickness", 0.2}, {"FlangeThickness", 0.1}},
       [](double) { return 0.2 + 1.8 * 0.2; }},
      {"IfcUShapeProfileDef",
       {{"Depth", 2},
        {"FlangeWidth", 1},
        {"WebThickness", 0.2},
        {"FlangeThickness", 0.1},
        {"FilletRadius", 0.1},
        {"EdgeRadius", 0.05}},
       [=](double pi) { return 0.2 + 1.8 * 0.2 + 2 * (0.01 - 0.0025) * corner(pi); }},
      {"IfcZShapeProfileDef",
       {{"Depth", 2}, {"FlangeWidth", 1}, {"WebThickness", 0.2}, {"FlangeThickness", 0.1}},
       [](double) { return 0.2 + 1.8 * 0.2; }},
      {"IfcZShapeProfileDef",
       {{"Depth", 2},
        {"FlangeWidth", 1},
        {"WebThickness", 0.2},
        {"FlangeThickness", 0.1},
        {"FilletRadius", 0.1},
        {"EdgeRadius", 0.1}},
       [=](double pi) { return 0.2 + 1.8 * 0.2 + 2 * (0.01 - 0.01) * corner(pi); }},
      {"IfcCShapeProfileDef",
       {{"Depth", 2}, {"Width", 1}, {"WallThickness", 0.1}, {"Girth", 0.3}},
       [](double) { return 2 - 0.8 * 1.8 - 0.1 * 1.4; }},
      {"IfcCShapeProfileDef",
       {{"Depth", 2},
        {"Width", 1},
        {"WallThickness", 0.1},
        {"Girth", 0.3},
        {"InternalFilletRadius", 0.1}},
       [](double) { return 2 - 0.8 * 1.8 - 0.1 * 1.4; }},
  };
}

}  // namespace qor::fc::test
