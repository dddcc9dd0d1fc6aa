#include <gtest/gtest.h>

#include <array>
#include <cmath>

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

// Frames computed once more, from the numbers of the file alone and by other means: columns times
// column vectors in the greatest precision that there is.
using Real = long double;
using Column = std::array<Real, 3>;
struct Frame {
  std::array<Column, 3> axes{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  Column origin{0, 0, 0};
};

template <typename Numbers>
Column columnOf(const Numbers& numbers) {
  Column result{0, 0, 0};
  std::size_t i = 0;
  for (const double number : numbers) result[i++] = number;
  return result;
}

Column unit(Column c) {
  const Real length = std::sqrt(c[0] * c[0] + c[1] * c[1] + c[2] * c[2]);
  for (Real& number : c) number /= length;
  return c;
}

Frame frameOf(const FcPlacement& placement, const FcDirection* axis, const FcDirection* reference) {
  Frame frame;
  if (const auto* point =
          fcCast<FcCartesianPoint>(static_cast<const FcBase*>(placement.Location().get())))
    frame.origin = columnOf(point->Coordinates());
  const Column z = axis ? unit(columnOf(axis->DirectionRatios())) : Column{0, 0, 1};
  Column x = reference ? columnOf(reference->DirectionRatios()) : Column{1, 0, 0};
  const Real along = x[0] * z[0] + x[1] * z[1] + x[2] * z[2];
  for (std::size_t i = 0; i < 3; ++i) x[i] -= along * z[i];
  x = unit(x);
  frame.axes = {
      x, Column{z[1] * x[2] - z[2] * x[1], z[2] * x[0] - z[0] * x[2], z[0] * x[1] - z[1] * x[0]},
      z};
  return frame;
}

Column placed(const Frame& frame, const Column& column, bool isPoint) {
  Column result = isPoint ? frame.origin : Column{0, 0, 0};
  for (std::size_t i = 0; i < 3; ++i)
    for (std::size_t axis = 0; axis < 3; ++axis) result[i] += frame.axes[axis][i] * column[axis];
  return result;
}

Frame frameOf(const FcAxis2Placement3D& placement) {
  return frameOf(placement, placement.Axis().get(), placement.RefDirection().get());
}

Frame frameOf(const FcLocalPlacement& placement) {
  const auto& relative = placement.RelativePlacement();
  if (relative.type() == FcAxis2Placement::Types::Axis2Placement3D)
    return frameOf(*relative.Axis2Placement3D());
  const auto& planar = *relative.Axis2Placement2D();
  return frameOf(planar, nullptr, planar.RefDirection().get());
}

/// From the top of the chain down; empty when not all of it have a frame in their numbers.
std::optional<Frame> absoluteFrame(const FcObjectPlacement* placement) {
  if (!placement) return Frame();
  const auto* local = fcCast<FcLocalPlacement>(placement);
  const auto* linear = fcCast<FcLinearPlacement>(placement);
  if (!local && !(linear && linear->CartesianPosition())) return {};
  const auto base = absoluteFrame(placement->PlacementRelTo().get());
  if (!base) return {};
  Frame frame = local ? frameOf(*local) : frameOf(*linear->CartesianPosition());
  for (Column& axis : frame.axes) axis = placed(*base, axis, false);
  frame.origin = placed(*base, frame.origin, true);
  return frame;
}

Matrix matrixOf(const Frame& frame) {
  const auto vector = [](const Column& c) {
    return math::Vector3d(double(c[0]), double(c[1]), double(c[2]));
  };
  return {vector(frame.axes[0]), vector(frame.axes[1]), vector(frame.axes[2]),
          Point3d() + vector(frame.origin)};
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
    EXPECT_LT(deviation(product->ObjectPlacement()->placementGet(false), matrixOf(*expected)), 1e-9)
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
