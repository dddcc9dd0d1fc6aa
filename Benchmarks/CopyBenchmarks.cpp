// Deep copies and comparisons of a storey of walls, all of which are connected: the work is that of
// a million entities. items_per_second counts entities; `memory` is what the run takes at its peak,
// as a multiple of what the copied model takes.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Benchmarks/HeapInUse.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Data.h"
#include "Fc/FcCopySettings.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcRectangleProfileDef.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Shared/BuildingElements/FcWall.h"

namespace qor::fc {
namespace {

using namespace resource;
using core::kernel::FcProduct;
using core::productextension::FcBuildingStorey;
using core::productextension::FcRelContainedInSpatialStructure;
using shared::buildingelements::FcWall;

constexpr std::int64_t kWalls = 100000;
constexpr std::int64_t kEntities = kWalls * 10;

/// A storey with its walls. Each wall is of ten entities: its placement, its shape and what these
/// are made of; all share a direction, a context and the storey's placement.
class StoreyOfWalls {
 public:
  StoreyOfWalls() {
    m_axis->setDirectionRatios({0, 0, 1});
    const auto storey = m_data->create<FcBuildingStorey>();
    storey->setObjectPlacement(m_placement);
    std::vector<std::shared_ptr<FcProduct>> walls;
    for (std::int64_t i = 0; i < kWalls; ++i) walls.push_back(wall(static_cast<double>(i)));
    m_contains->setRelatedElements(std::move(walls));
    m_contains->setRelatingStructure(storey);
  }

  /// Reaches everything.
  const FcBase& root() const { return *m_contains; }

 private:
  std::shared_ptr<FcWall> wall(double x) {
    const auto wall = m_data->create<FcWall>();
    wall->setGuid(Guid::generate());
    wall->setName("Wall " + std::to_string(static_cast<int>(x)));
    const auto placement = m_data->create<geometricconstraint::FcLocalPlacement>();
    placement->setPlacementRelTo(m_placement);
    placement->setRelativePlacement(axisPlacement(x));
    wall->setObjectPlacement(placement);
    const auto shape = m_data->create<representation::FcProductDefinitionShape>();
    shape->setRepresentations({body()});
    wall->setRepresentation(shape);
    return wall;
  }
  std::shared_ptr<representation::FcShapeRepresentation> body() {
    const auto profile = m_data->create<profile::FcRectangleProfileDef>();
    profile->setXDim(5);
    profile->setYDim(0.3);
    const auto solid = m_data->create<geometricmodel::FcExtrudedAreaSolid>();
    solid->setSweptArea(profile);
    solid->setPosition(axisPlacement(0));
    solid->setExtrudedDirection(m_axis);
    solid->setDepth(3);
    const auto body = m_data->create<representation::FcShapeRepresentation>();
    body->setContextOfItems(m_context);
    body->setRepresentationIdentifier("Body");
    body->setItems({solid});
    return body;
  }
  std::shared_ptr<geometry::FcAxis2Placement3D> axisPlacement(double x) {
    const auto point = m_data->create<geometry::FcCartesianPoint>();
    point->setCoordinates({x, 0, 0});
    const auto placement = m_data->create<geometry::FcAxis2Placement3D>();
    placement->setLocation(point);
    placement->setAxis(m_axis);
    return placement;
  }

  std::shared_ptr<Data> m_data = std::make_shared<Data>();
  std::shared_ptr<geometry::FcDirection> m_axis = m_data->create<geometry::FcDirection>();
  std::shared_ptr<geometricconstraint::FcLocalPlacement> m_placement =
      m_data->create<geometricconstraint::FcLocalPlacement>();
  std::shared_ptr<representation::FcGeometricRepresentationContext> m_context =
      m_data->create<representation::FcGeometricRepresentationContext>();
  std::shared_ptr<FcRelContainedInSpatialStructure> m_contains =
      m_data->create<FcRelContainedInSpatialStructure>();
};

/// What a copy into another model takes on the heap at its peak, its book-keeping included.
double memoryOfCopy(const FcBase& root) {
  const std::size_t before = heapInUse();
  std::size_t peak = before;
  std::size_t calls = 0;
  FcCopySettings settings;
  settings.target = std::make_shared<Data>();
  settings.externalCopy = [&](const FcBase&) {
    if (++calls % 10000 == 0) peak = std::max(peak, heapInUse());
    return std::shared_ptr<FcBase>();
  };
  root.deepCopy(settings);
  return static_cast<double>(std::max(peak, heapInUse()) - before);
}

void copyIntoAnotherModel(benchmark::State& state) {
  const std::size_t before = heapInUse();
  const StoreyOfWalls model;
  const auto size = static_cast<double>(heapInUse() - before);
  for (auto _ : state) {
    auto target = std::make_shared<Data>();
    {
      FcCopySettings settings;
      settings.target = target;
      benchmark::DoNotOptimize(model.root().deepCopy(settings));
    }
    state.PauseTiming();
    target.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kEntities);
  state.counters["bytes_per_entity"] = size / kEntities;
  state.counters["memory"] = memoryOfCopy(model.root()) / size;
}
BENCHMARK(copyIntoAnotherModel)->Unit(benchmark::kMillisecond);

// The answer takes a look at everything: the two are equal.
void compareWithACopy(benchmark::State& state) {
  const StoreyOfWalls model;
  const std::shared_ptr<FcBase> copy = model.root().deepCopy();
  for (auto _ : state) {
    if (!model.root().isEqualTo(*copy)) state.SkipWithError("a copy differs from its source");
  }
  state.SetItemsProcessed(state.iterations() * kEntities);
}
BENCHMARK(compareWithACopy)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor::fc
