#pragma once

#include <array>
#include <memory>
#include <numbers>
#include <vector>

#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Math/Matrix.h"
#include "Tests/Fc/Geometry/ProfileCases.h"
#include "Tests/Support/Make.h"

// Items that tests of the solid modeller are made of.
namespace qor::test {

inline fc::FcParams params(double chordValue = 0.01) {
  return fc::FcParams(math::CurveDiscretization(chordValue, 6, 100));
}

using Quad = std::array<std::uint32_t, 4>;
/// The sides of a box, counter-clockwise from outside, over its corners with X running fastest,
/// then Y, then Z.
inline constexpr std::array<Quad, 6> boxSides{
    {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};

inline std::vector<math::Point3d> boxCorners(const math::Point3d& low, const math::Point3d& high) {
  std::vector<math::Point3d> corners;
  for (const double z : {low.z, high.z})
    for (const double y : {low.y, high.y})
      for (const double x : {low.x, high.x}) corners.emplace_back(x, y, z);
  return corners;
}

/// The box as a closed face set without the last `missing` of its sides.
inline std::shared_ptr<fc::resource::geometricmodel::FcPolygonalFaceSet> boxItem(
    const math::Point3d& low, const math::Point3d& high, std::size_t missing = 0) {
  generate::draw::PolygonalFaceSetOpenGL faceSet;
  faceSet.coordinates = boxCorners(low, high);
  for (std::size_t i = 0; i + missing < boxSides.size(); ++i)
    faceSet.faces.push_back({.outer = {boxSides[i].begin(), boxSides[i].end()}});
  auto item =
      fc::resource::geometricmodel::FcPolygonalFaceSet::fromQorPolygonalFaceSet(faceSet).first;
  item->setClosed(missing == 0);
  return item;
}

/// A profile that is carried up.
inline std::shared_ptr<fc::resource::geometricmodel::FcExtrudedAreaSolid> extrusion(
    const std::shared_ptr<fc::resource::profile::FcProfileDef>& area, double depth) {
  return make<fc::resource::geometricmodel::FcExtrudedAreaSolid>(
      {{"SweptArea", area},
       {"ExtrudedDirection", fc::resource::geometry::makeDirection(math::Vector3d(0, 0, 1))},
       {"Depth", depth}});
}

/// A wall 4 long, 0.3 thick and 3 high round the origin; it runs along Y, since its profile is
/// turned.
inline std::shared_ptr<fc::resource::geometricmodel::FcExtrudedAreaSolid> turnedWall() {
  const auto area = makeProfile("IfcRectangleProfileDef", "XDim 4, YDim 0.3");
  give(*area, {{"Position", planarPosition(0, 0, std::numbers::pi / 2)}});
  return extrusion(area, 3);
}

/// All above the plane through `point` with the Z axis `normal`, or below it with `agreement`.
inline std::shared_ptr<fc::resource::geometricmodel::FcHalfSpaceSolid> halfSpace(
    const math::Point3d& point, const math::Vector3d& normal, bool agreement = false) {
  const math::Vector3d across =
      std::abs(normal.x) < 0.5 ? math::Vector3d(1, 0, 0) : math::Vector3d(0, 1, 0);
  const math::Vector3d x = across.cross(normal).normalized();
  const auto position =
      fc::resource::geometry::makePlacement(math::Matrix(point, x, normal.normalized()));
  return make<fc::resource::geometricmodel::FcHalfSpaceSolid>(
      {{"BaseSurface", make<fc::resource::geometry::FcPlane>({{"Position", position}})},
       {"AgreementFlag", agreement}});
}

template <class First, class Second>
std::shared_ptr<fc::resource::geometricmodel::FcBooleanResult> boolean(
    fc::resource::geometricmodel::FcBooleanOperator::Enum operation,
    const std::shared_ptr<First>& first, const std::shared_ptr<Second>& second) {
  using fc::resource::geometricmodel::FcBooleanOperand;
  auto result = std::make_shared<fc::resource::geometricmodel::FcBooleanResult>();
  result->setOperator(operation);
  if (first) result->setFirstOperand(FcBooleanOperand::fromRepresentationItem(first));
  if (second) result->setSecondOperand(FcBooleanOperand::fromRepresentationItem(second));
  return result;
}

template <class First, class Second>
auto difference(const std::shared_ptr<First>& first, const std::shared_ptr<Second>& second) {
  return boolean(fc::resource::geometricmodel::FcBooleanOperator::DIFFERENCE, first, second);
}

}  // namespace qor::test
