// What a walk costs apart from the geometry: products that draw nothing, and long polylines on
// their way to a target.

#include <benchmark/benchmark.h>

#include <numeric>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Data.h"
#include "Fc/Document/Document.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::fc {
namespace {

/// Counts, and copies what a target that keeps a polyline copies.
class CountingTarget : public generate::draw::DrawInterface {
 public:
  std::size_t objects = 0;
  std::vector<math::Point3d> points;

  void vTransformationSet(const math::Matrix& matrix) override { m_frame = matrix; }
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix, math::MatrixMultiplyOrder) override {
    m_frame = matrix * m_frame;
  }
  void vPolyline(const std::vector<math::Point3d>& polyline) override { points = polyline; }
  using DrawInterfaceBase::vPolygon;
  void vPolygon(const std::vector<Loop3d>&,
                std::optional<generate::draw::SurfaceDrawType>) override {}
  void vTextLiteral(const char*, std::size_t) override {}
  void startObject(const generate::ObjectInterface*) override { ++objects; }
  void stopObject() override {}
  bool boAttribute(const generate::AttributeInterface&) override { return false; }
  void setMaterial(std::shared_ptr<const generate::draw::Material>) override {}
  std::shared_ptr<const generate::draw::Material> getMaterial() const override { return {}; }
  void setColor(const generate::draw::Color&) override {}
  generate::draw::Color getColor() const override { return {}; }

 private:
  math::Matrix m_frame;
};

std::shared_ptr<Data> storeyOfWalls(std::size_t count, bool placed) {
  auto data = std::make_shared<Data>();
  const auto storey = data->create<core::productextension::FcBuildingStorey>();
  data->create<core::kernel::FcProject>()->aggregatesConnect(*data, storey);
  std::vector<std::shared_ptr<core::kernel::FcProduct>> walls;
  const auto frame = std::make_shared<resource::geometry::FcAxis2Placement3D>(math::Matrix());
  for (std::size_t i = 0; i < count; ++i) {
    walls.push_back(data->create<shared::buildingelements::FcWall>());
    if (!placed) continue;
    const auto placement = data->create<resource::geometricconstraint::FcLocalPlacement>();
    placement->setRelativePlacement(frame);
    walls.back()->setObjectPlacement(placement);
  }
  const auto relation = data->create<core::productextension::FcRelContainedInSpatialStructure>();
  relation->setRelatedElements(std::move(walls));
  relation->setRelatingStructure(storey);
  return data;
}

void walkOverProductsThatDrawNothing(benchmark::State& state) {
  const auto data = storeyOfWalls(static_cast<std::size_t>(state.range(0)), state.range(1) != 0);
  const document::Document document(data);
  for (auto _ : state) {
    CountingTarget target;
    document.generate(static_cast<generate::draw::DrawInterfaceBase&>(target));
    benchmark::DoNotOptimize(target.objects);
  }
  FcGenerateParams::removeCache(*data);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(walkOverProductsThatDrawNothing)
    ->ArgNames({"products", "placed"})
    ->Args({100000, 0})
    ->Args({100000, 1})
    ->Unit(benchmark::kMillisecond);

// To be compared with the plain copy, which is what the target makes.
void polylineThroughTheWrapper(benchmark::State& state) {
  const std::vector<math::Point3d> points(static_cast<std::size_t>(state.range(0)));
  CountingTarget target;
  FcDrawInterfaceWrapper wrapper(target);
  for (auto _ : state) {
    wrapper.vPolyline(points);
    benchmark::DoNotOptimize(target.points.data());
  }
  state.SetBytesProcessed(state.iterations() * state.range(0) *
                          static_cast<std::int64_t>(sizeof(math::Point3d)));
}
BENCHMARK(polylineThroughTheWrapper)->Arg(1000000)->Unit(benchmark::kMillisecond);

void copyOfAPolyline(benchmark::State& state) {
  const std::vector<math::Point3d> points(static_cast<std::size_t>(state.range(0)));
  std::vector<math::Point3d> copy;
  for (auto _ : state) {
    copy = points;
    benchmark::DoNotOptimize(copy.data());
  }
  state.SetBytesProcessed(state.iterations() * state.range(0) *
                          static_cast<std::int64_t>(sizeof(math::Point3d)));
}
BENCHMARK(copyOfAPolyline)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor::fc
