// Each product of a real model is opened in the frame that its placement chain gives when it is
// multiplied by hand.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <sstream>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Host/Cli/ModelDrawing.h"
#include "Host/Targets/SceneTarget.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {
namespace {

using fc::core::kernel::FcProduct;
using fc::resource::geometricconstraint::FcLocalPlacement;
using fc::resource::geometricconstraint::FcObjectPlacement;
using math::Matrix;
using math::Point3d;
using math::Vector3d;

template <class Triple>
Vector3d numbersOf(const Triple& triple) {
  return {triple[0], triple[1], triple[2]};
}

Vector3d unit(const Vector3d& v) { return v * (1 / std::sqrt(v.dot(v))); }

template <class Direction>
Vector3d directionOr(const Direction& direction, const Vector3d& otherwise) {
  return direction ? unit(numbersOf(direction->DirectionRatios())) : otherwise;
}

template <class Placement>
Point3d originOf(const Placement& placement) {
  const auto point = fc::fcCast<fc::resource::geometry::FcCartesianPoint>(placement.Location());
  const Vector3d origin = point ? numbersOf(point->Coordinates()) : Vector3d();
  return {origin.x, origin.y, origin.z};
}

Matrix relativeFrame(const FcLocalPlacement& placement) {
  using Types = fc::resource::geometry::FcAxis2Placement::Types;
  const auto& select = placement.RelativePlacement();
  if (select.type() == Types::Axis2Placement3D && select.Axis2Placement3D()) {
    const auto& frame = *select.Axis2Placement3D();
    const Vector3d z = directionOr(frame.Axis(), {0, 0, 1});
    const Vector3d slanted = directionOr(frame.RefDirection(), {1, 0, 0});
    const Vector3d x = unit(slanted - z * slanted.dot(z));
    return {x, z.cross(x), z, originOf(frame)};
  }
  if (select.type() == Types::Axis2Placement2D && select.Axis2Placement2D()) {
    const auto& frame = *select.Axis2Placement2D();
    const Vector3d x = directionOr(frame.RefDirection(), {1, 0, 0}), z(0, 0, 1);
    return {x, z.cross(x), z, originOf(frame)};
  }
  return {};
}

/// Nothing for a chain with a placement of another kind in it.
std::optional<Matrix> chain(const FcObjectPlacement* placement) {
  Matrix frame;
  for (; placement; placement = placement->PlacementRelTo().get()) {
    const auto* local = fc::fcCast<FcLocalPlacement>(placement);
    if (!local) return std::nullopt;
    frame = frame * relativeFrame(*local);
  }
  return frame;
}

double distance(const Matrix& a, const Matrix& b) {
  const double scale = std::max({1.0, std::abs(a.origin().x), std::abs(a.origin().y)});
  const Vector3d differences[] = {a.x() - b.x(), a.y() - b.y(), a.z() - b.z(),
                                  (a.origin() - b.origin()) * (1 / scale)};
  double most = 0;
  for (const Vector3d& d : differences) most = std::max(most, d.length());
  return most;
}

class PlacementChain : public ModelTest {};

TEST_P(PlacementChain, IsTheFrameOfEachProduct) {
  const auto previous = Assert::setHandler([](const AssertInfo&) {});
  const host::step::ReadResult model = host::step::readStepFile(GetParam());
  std::ostringstream out, err;
  host::cli::Console console{out, err};
  host::targets::SceneTarget target({0.002, 16, 72});
  const bool drawn =
      host::cli::drawModel(model, {.file = GetParam()}, {}, nullptr, target, console);
  Assert::setHandler(previous);
  if (!drawn) GTEST_SKIP() << err.str();
  const host::targets::Scene scene = target.takeScene();
  for (const host::targets::SceneObject& object : scene.objects) {
    const auto* product = fc::fcCast<FcProduct>(object.entity);
    if (!product || !product->ObjectPlacement()) continue;
    const std::optional<Matrix> expected = chain(product->ObjectPlacement().get());
    if (!expected) continue;
    EXPECT_LT(distance(*expected, object.frame), 1e-9) << object.className << " " << object.guid;
  }
}

FC_INSTANTIATE_FOR_MODELS(PlacementChain, sharedModels());

}  // namespace
}  // namespace qor::test
