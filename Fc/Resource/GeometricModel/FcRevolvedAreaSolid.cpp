#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolid.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using math::Epsilon;
using math::Extent;
using math::Matrix;
using math::Point3d;
using math::Vector3d;

namespace {}  // namespace

std::optional<RevolutionAxis> FcRevolvedAreaSolid::axisInPlane() const {
  const double tolerance = Epsilon::current().general;
  if (!requireThat(*this, Axis() != nullptr, "Axis should exist")) return std::nullopt;
  const auto point = fcCast<geometry::FcCartesianPoint>(Axis()->Location());
  const Point3d location = point ? point->point() : Point3d();
  if (!requireThat(*this, std::abs(location.z) <= tolerance,
                   "Axis location must have a Z value of 0") ||
      !requireThat(*this, Axis()->Axis() != nullptr, "Axis direction must exist"))
    return std::nullopt;
  const Vector3d direction = Axis()->Axis()->vector().normalized();
  if (!requireThat(*this, std::abs(direction.z) <= tolerance,
                   "Axis direction must have a Z value of 0"))
    return std::nullopt;
  return RevolutionAxis{{location.x, location.y},
                        math::Vector2d(direction.x, direction.y).normalized()};
}

bool FcRevolvedAreaSolid::hasSweptArea() const {
  return requireThat(*this, SweptArea() != nullptr, "Swept area should exist");
}

bool FcRevolvedAreaSolid::hasAngle() const {
  return requireThat(*this,
                     Angle() >= 0.0 && Angle() <= 2 * std::numbers::pi + Epsilon::current().angle,
                     "Angle should be between 0 and 2pi (or 360 deg)");
}

void FcRevolvedAreaSolid::draw(const FcDrawParams& params) const {
  const auto axis = axisInPlane();
  if (!axis || !hasSweptArea() || !hasAngle()) return;
  const FcParams evaluation(params);
  const auto profiles = SweptArea()->closedProfileWithEnforcedOrientation(evaluation, true);
  if (profiles.empty()) return;
  const generate::draw::TransformationGuard guard(params);
  applyPosition(params);
  for (const auto& profile : profiles)
    if (auto set = revolvedFaceSet(profile, *axis, Angle(), evaluation.curveDiscretization()))
      params->polygonalFaceSet(std::move(*set));
}

void FcRevolvedAreaSolid::transform(const Matrix& matrix) {
  if (matrix.isIdentity()) return;
  if (!requireThat(*this, !matrix.isMirror(),
                   "Must fixed implementation if mirror should be allowed"))
    return;
  expectThat(*this, matrix.isOrthogonal(), "Matrix must be orthogonal");
  const double factor = matrix.x().length();
  const double tolerance = Epsilon::current().length;
  if (!requireThat(*this,
                   std::abs(matrix.y().length() - factor) <= tolerance &&
                       std::abs(matrix.z().length() - factor) <= tolerance,
                   "Non uniform scaling is not implemented"))
    return;
  if (std::abs(factor - 1) > tolerance && !scale(factor)) return;
  if (Position())
    Position()->transform(matrix);
  else
    setPosition(geometry::makePlacement(matrix));
}

bool FcRevolvedAreaSolid::scale(double factor) {
  if (!requireThat(*this, SweptArea() != nullptr,
                   "FcRevolvedAreaSolid must have SweptArea before scaling") ||
      !requireThat(*this, Axis() != nullptr, "FcRevolvedAreaSolid must have Axis before scaling"))
    return false;
  transformProfiles(math::Matrix2d::createScale(factor, factor));
  Axis()->transform(Matrix::createScale(factor, factor, 1));
  return true;
}

std::optional<Extent> FcRevolvedAreaSolid::boundingBox(const FcParams& params) const {
  const auto axis = axisInPlane();
  if (!axis || !hasSweptArea() || !hasAngle()) return std::nullopt;
  const auto planarBox = SweptArea()->planarBox(params);
  if (!requireThat(*this, planarBox.has_value(), "No planar box")) return std::nullopt;
  return boundingBoxFromProfileExtent(*planarBox, *axis);
}

Extent FcRevolvedAreaSolid::boundingBoxFromProfileExtent(const math::Extent2d& planarBox,
                                                         const RevolutionAxis& axis) const {
  const double quarter = std::numbers::pi / 2;
  Extent box;
  const auto includeAt = [&](double angle) {
    const Matrix turn = turnAround(axis, angle);
    for (const double x : {planarBox.minimum().x, planarBox.maximum().x})
      for (const double y : {planarBox.minimum().y, planarBox.maximum().y})
        box.include(Point3d(x, y, 0) * turn);
  };
  for (int i = 0; i * quarter < Angle(); ++i) includeAt(i * quarter);
  includeAt(Angle());
  return box.transformExtent(validPosition());
}

}  // namespace qor::fc::resource::geometricmodel
