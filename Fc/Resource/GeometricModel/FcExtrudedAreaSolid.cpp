#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"

#include <cmath>
#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcCircleProfileDef.h"
#include "Fc/Resource/Profile/FcRectangleProfileDef.h"
#include "Fc/Shapes/ExtrudedFaceSet.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Epsilon;
using math::Extent;
using math::Matrix;
using math::Vector3d;

namespace {

template <class Class>
bool isExactly(const profile::FcProfileDef& profile) {
  return profile.classId() == Class::firstClassId;
}

}  // namespace

bool FcExtrudedAreaSolid::hasDepth(const char* message) const {
  return requireThat(*this, std::isfinite(Depth()) && Depth() > Epsilon::current().length, message);
}

bool FcExtrudedAreaSolid::hasSweptArea() const {
  return requireThat(*this, SweptArea() != nullptr, "Swept area should exist");
}

bool FcExtrudedAreaSolid::hasDirection() const {
  return requireThat(*this,
                     ExtrudedDirection() && std::isfinite(ExtrudedDirection()->vector().length()),
                     "Extrude direction should exist");
}

bool FcExtrudedAreaSolid::isReadyToDraw() const {
  return hasDepth("Depth should be a positive value") && hasSweptArea() && hasDirection();
}

void FcExtrudedAreaSolid::draw(const FcDrawParams& params) const {
  if (!isReadyToDraw()) return;
  if (auto cylinder = asEquivalentRightCircularCylinder()) {
    params->drawRepresentationItem(std::move(cylinder), params,
                                   generate::draw::SurfaceDrawType::Surface);
    return;
  }
  if (auto block = asFcBlock()) {
    params->drawRepresentationItem(std::move(block), params,
                                   generate::draw::SurfaceDrawType::Surface);
    return;
  }
  auto profiles = SweptArea()->closedProfileWithEnforcedOrientation(FcParams(params), true);
  if (profiles.empty()) return;
  const generate::draw::TransformationGuard guard(params);
  applyPosition(params);
  const Vector3d extrusion = normalizedExtrudedDirection() * Depth();
  for (Profile2D& profile : profiles)
    if (!profile.empty() && !profile.contours().front().empty())
      params->polygonalFaceSet(faceSetFromExtruded(profile, extrusion));
}

PolygonalFaceSetOpenGL FcExtrudedAreaSolid::faceSetFromExtruded(Profile2D& profile,
                                                                const Vector3d& extrusion) {
  return extrudedFaceSet(profile, extrusion);
}

Vector3d FcExtrudedAreaSolid::normalizedExtrudedDirection() const {
  if (!requireThat(*this, ExtrudedDirection() != nullptr,
                   "Assertion failed: expect only to be called if ExtrudedDirection() exists"))
    return {};
  const Vector3d direction = ExtrudedDirection()->vector().normalized();
  expectThat(*this, std::abs(direction.z) > Epsilon::current().length,
             "By formal proposition, the extruded direction must not be perpendicular to the local "
             "Z-Axis");
  return direction;
}

bool FcExtrudedAreaSolid::runsAlongZ() const {
  return ExtrudedDirection()->vector().isParallel({0, 0, 1});
}

std::shared_ptr<FcRightCircularCylinder> FcExtrudedAreaSolid::asEquivalentRightCircularCylinder()
    const {
  if (!requireThat(
          *this, SweptArea() && ExtrudedDirection() && Depth() > Epsilon::current().length,
          "Assertion failed: expect to be called only for valid SweptArea, ExtrudedDirection and "
          "Depth"))
    return nullptr;
  if (!isExactly<profile::FcCircleProfileDef>(*SweptArea()) || !runsAlongZ()) return nullptr;
  const auto& circle = static_cast<const profile::FcCircleProfileDef&>(*SweptArea());
  const Matrix frame = circle.validPosition().toMatrix3d() * validPosition();
  const double up = ExtrudedDirection()->vector().z > 0 ? 1 : -1;
  auto cylinder = makeEntity<FcRightCircularCylinder>();
  cylinder->setRadius(circle.Radius());
  cylinder->setHeight(Depth());
  cylinder->setPosition(geometry::makePlacement(Matrix(frame.origin(), frame.x(), frame.z() * up)));
  return cylinder;
}

std::shared_ptr<FcBlock> FcExtrudedAreaSolid::asFcBlock() const {
  if (!requireThat(
          *this, SweptArea() && ExtrudedDirection() && Depth() > Epsilon::current().length,
          "Assertion failed: expect to be called only for valid SweptArea, ExtrudedDirection and "
          "Depth"))
    return nullptr;
  if (!isExactly<profile::FcRectangleProfileDef>(*SweptArea()) || !runsAlongZ()) return nullptr;
  const auto& rectangle = static_cast<const profile::FcRectangleProfileDef&>(*SweptArea());
  const double bottom = ExtrudedDirection()->vector().z > 0 ? 0 : -Depth();
  const Vector3d toCorner{-rectangle.XDim() / 2, -rectangle.YDim() / 2, bottom};
  auto block = makeEntity<FcBlock>();
  block->setXLength(rectangle.XDim());
  block->setYLength(rectangle.YDim());
  block->setZLength(Depth());
  block->setPosition(geometry::makePlacement(Matrix::createTranslation(toCorner) *
                                             rectangle.validPosition().toMatrix3d() *
                                             validPosition()));
  return block;
}

void FcExtrudedAreaSolid::transform(const Matrix& matrix) {
  if (!hasDepth("Depth should be a positive distance")) return;
  const Matrix position = validPosition() * matrix;
  if (!position.isIdentity()) {
    expectThat(*this, position.isOrthogonal(), "Matrix must be orthogonal");
    const double tolerance = Epsilon::current().length;
    const double sx = position.x().length();
    const double sy = position.y().length();
    const double sz = position.z().length();
    if (ExtrudedDirection()) {
      const Vector3d d = ExtrudedDirection()->vector().normalized();
      const Vector3d scaled = Vector3d(sx * d.x, sy * d.y, sz * d.z) * Depth();
      if (!scaled.isNear(d * Depth())) {
        setDepth(scaled.length());
        ExtrudedDirection()->setVector(scaled.normalized());
      }
    }
    if (std::abs(sx - 1) > tolerance || std::abs(sy - 1) > tolerance)
      transformProfiles(math::Matrix2d::createScale(sx, sy));
  }
  setPosition(geometry::makePlacement(position));
}

std::optional<Extent> FcExtrudedAreaSolid::boundingBox(const FcParams& params) const {
  if (!isReadyToDraw()) return std::nullopt;
  const auto planarBox = SweptArea()->planarBox(params);
  return planarBox ? std::optional(boxOfExtruded(*planarBox)) : std::nullopt;
}

Extent FcExtrudedAreaSolid::boxOfExtruded(const math::Extent2d& planarBox) const {
  const Matrix frame = validPosition();
  const Vector3d extrusion = normalizedExtrudedDirection() * Depth();
  Extent box;
  for (const double x : {planarBox.minimum().x, planarBox.maximum().x})
    for (const double y : {planarBox.minimum().y, planarBox.maximum().y}) {
      const math::Point3d corner{x, y, 0};
      box.include(corner * frame);
      box.include((corner + extrusion) * frame);
    }
  return box;
}

}  // namespace qor::fc::resource::geometricmodel
