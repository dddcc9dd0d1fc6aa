#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Host/StepFile/StepReader.h"
#include "Items.h"
#include "Tests/Support/SharedModels.h"

namespace qor::fc::resource::geometry {
namespace {

using core::kernel::FcProduct;
using namespace geometricconstraint;
using math::Matrix;
using math::Point3d;
using math::Vector3d;

// Frames computed once more, from the numbers of the file alone.

Vector3d unit(const Vector3d& v) { return v * (1 / std::sqrt(v.dot(v))); }

Vector3d ratios(const std::shared_ptr<FcDirection>& direction, const Vector3d& otherwise) {
  if (!direction) return otherwise;
  const auto& r = direction->DirectionRatios();
  return {double(r[0]), double(r[1]), double(r[2])};
}

Matrix frameOf(const FcAxis2Placement& select) {
  const auto* spatial = fcCast<FcAxis2Placement3D>(select.getEntity());
  const auto* planar = fcCast<FcAxis2Placement2D>(select.getEntity());
  if (!spatial && !planar) return {};
  const auto& at =
      fcCast<FcCartesianPoint>(spatial ? spatial->Location() : planar->Location())->Coordinates();
  const Vector3d z = unit(ratios(spatial ? spatial->Axis() : nullptr, {0, 0, 1}));
  const Vector3d r = ratios(spatial ? spatial->RefDirection() : planar->RefDirection(), {1, 0, 0});
  const Vector3d x = unit(r - z * r.dot(z));
  return {x, z.cross(x), z, Point3d(at[0], at[1], at[2])};
}

/// Empty when not all of the chain have a frame in their numbers.
std::optional<Matrix> absoluteFrame(const FcObjectPlacement* placement) {
  Matrix frame;
  for (; placement; placement = placement->PlacementRelTo().get()) {
    const auto* linear = fcCast<FcLinearPlacement>(placement);
    const auto* local = fcCast<FcLocalPlacement>(placement);
    if (!local && !(linear && linear->CartesianPosition())) return {};
    frame = frame * frameOf(local ? local->RelativePlacement()
                                  : FcAxis2Placement(linear->CartesianPosition()));
  }
  return frame;
}

class RealModel : public testing::TestWithParam<std::filesystem::path> {
 protected:
  const std::shared_ptr<Data> data = host::step::readStepFile(GetParam()).data;
};

TEST_P(RealModel, PlacesEachProductWhereItsNumbersSay) {
  for (const std::shared_ptr<FcProduct> product : data->entities<FcProduct>()) {
    if (!product->ObjectPlacement()) continue;
    const auto expected = absoluteFrame(product->ObjectPlacement().get());
    if (!expected) continue;
    EXPECT_LT(deviation(product->ObjectPlacement()->placementGet(false), *expected), 1e-9)
        << product->ifcName() << ' ' << product->GlobalId().toString(false);
  }
}

TEST_P(RealModel, AnswersForEachCurve) {
  for (const std::shared_ptr<FcCurve> curve : data->entities<FcCurve>()) {
    const auto points = curve->curveGet(params, {}, {}, false);
    for (const Point3d& point : points)
      EXPECT_TRUE(std::isfinite(point.x + point.y + point.z)) << curve->ifcName();
    if (points.empty() || !curve->is2d()) continue;
    const auto planar = curve->curve2d(params, {}, {}, false);
    ASSERT_TRUE(planar) << curve->ifcName();
    ASSERT_EQ(planar->size(), points.size()) << curve->ifcName();
    for (std::size_t i = 0; i < points.size(); ++i)
      EXPECT_LT((*planar)[i].distance({points[i].x, points[i].y}), 1e-9) << curve->ifcName();
  }
}

INSTANTIATE_TEST_SUITE_P(Geometry, RealModel, testing::ValuesIn(test::sharedModels()),
                         test::modelTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealModel);

}  // namespace
}  // namespace qor::fc::resource::geometry
