// The entity spine without a file: creation by name, class queries, guid look-ups, relationships.
#include <benchmark/benchmark.h>

#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcElement.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Data.h"
#include "Fc/Factory.h"
#include "Fc/Shared/BuildingElements/FcWall.h"

namespace qor::fc {
namespace {

using core::productextension::FcBuildingStorey;
using core::productextension::FcElement;
using core::productextension::FcRelContainedInSpatialStructure;
using shared::buildingelements::FcWall;

// A model of that many entities: one in ten a wall with a guid, the others points and directions.
std::shared_ptr<Data> makeModel(std::int64_t count) {
  auto data = std::make_shared<Data>();
  for (std::int64_t i = 0; i < count; ++i) {
    if (i % 10 == 0)
      data->create<FcWall>()->setGuid(Guid::generate());
    else
      data->entityCreate(i % 10 < 6 ? "IfcCartesianPoint" : "IfcDirection");
  }
  return data;
}

void createByName(benchmark::State& state) {
  constexpr int batch = 100000;
  const std::string name = "IfcDirection";
  for (auto _ : state) {
    auto data = std::make_shared<Data>();
    for (int i = 0; i < batch; ++i) benchmark::DoNotOptimize(data->entityCreate(name));
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * batch);
}
BENCHMARK(createByName)->Unit(benchmark::kMillisecond);

void firstQueryAfterLoad(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto data = makeModel(state.range(0));
    state.ResumeTiming();
    benchmark::DoNotOptimize(data->entities<FcWall>().size());
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(firstQueryAfterLoad)->Arg(1000000)->Unit(benchmark::kMillisecond);

void queryByClass(benchmark::State& state) {
  const auto data = makeModel(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(data->entities<FcElement>().size());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(queryByClass)->Arg(1000000);

void walkAClass(benchmark::State& state) {
  const auto data = makeModel(state.range(0));
  std::size_t named = 0;
  for (auto _ : state)
    for (const auto& wall : data->entities<FcWall>()) named += wall->Name().has_value();
  benchmark::DoNotOptimize(named);
  state.SetItemsProcessed(state.iterations() * state.range(0) / 10);
}
BENCHMARK(walkAClass)->Arg(1000000)->Unit(benchmark::kMillisecond);

void findByGuid(benchmark::State& state) {
  const auto data = makeModel(state.range(0));
  std::vector<Guid> guids;
  for (const auto& wall : data->entities<FcWall>()) guids.push_back(wall->getGuid());
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(data->entityByGuid(guids[next]));
    next = (next + 7919) % guids.size();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(findByGuid)->Arg(1000000);

void linkToOneTarget(benchmark::State& state) {
  auto storey = std::make_shared<FcBuildingStorey>();
  std::vector<std::shared_ptr<FcRelContainedInSpatialStructure>> relations(
      static_cast<std::size_t>(state.range(0)));
  for (auto& relation : relations) relation = std::make_shared<FcRelContainedInSpatialStructure>();
  for (auto _ : state) {
    for (auto& relation : relations) relation->setRelatingStructure(storey);
    state.PauseTiming();
    storey->clearInverseAttributes();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(linkToOneTarget)->Arg(10)->Arg(1000)->Arg(100000);

}  // namespace
}  // namespace qor::fc
