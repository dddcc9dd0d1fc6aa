// The entity spine without a file: creation by name, class queries, guid look-ups, relationships.
#include <benchmark/benchmark.h>

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelAssociatesClassification.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcElement.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Data.h"
#include "Fc/Factory.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Qor/Classification/ClassificationInterface.h"

namespace qor::fc {
namespace {

using core::kernel::FcPropertySet;
using core::kernel::FcRelAssociatesClassification;
using core::kernel::FcRelDefinesByProperties;
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

void queryAfterEachAddition(benchmark::State& state) {
  constexpr int additions = 800;
  for (auto _ : state) {
    state.PauseTiming();
    auto data = makeModel(500000);
    benchmark::DoNotOptimize(data->allEntities().size());
    const std::string name = state.range(0) == 0 ? "IfcWall" : "IfcCartesianPoint";
    state.ResumeTiming();
    for (int i = 0; i < additions; ++i) {
      data->entityCreate(name);
      benchmark::DoNotOptimize(data->entities<FcWall>().size());
    }
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
}
// Of a high class, with little above it, and of a low one.
BENCHMARK(queryAfterEachAddition)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void insertIntoAListOfSelects(benchmark::State& state) {
  std::vector<std::shared_ptr<FcWall>> walls(static_cast<std::size_t>(state.range(0)));
  for (auto& wall : walls) wall = std::make_shared<FcWall>();
  for (auto _ : state) {
    const auto relation = std::make_shared<FcRelAssociatesClassification>();
    for (const auto& wall : walls) relation->insertRelatedObjects(wall);
    state.PauseTiming();
    relation->setRelatedObjects({});
    state.ResumeTiming();
  }
}
BENCHMARK(insertIntoAListOfSelects)->Arg(20000)->Unit(benchmark::kMillisecond);

class Codes : public classification::ClassificationInterface {
 public:
  std::string getName() const override { return "System"; }
  std::string getDescription() const override { return {}; }
  std::string getEditionDate() const override { return {}; }
  std::string getReferenceName(const std::string& code) const override { return code; }
  std::string getReferenceDescription(const std::string&) const override { return {}; }
  std::string getReferenceLocation(const std::string&) const override { return {}; }
  std::string getReferenceSort(const std::string&) const override { return {}; }
};

void classifyWalls(benchmark::State& state) {
  const auto system = std::make_shared<Codes>();
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_shared<Data>();
    for (std::int64_t i = 0; i < state.range(0); ++i) data->create<FcWall>();
    state.ResumeTiming();
    for (const std::shared_ptr<FcWall> wall : data->entities<FcWall>())
      wall->classify(system, {"A", "A.1"});
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(classifyWalls)->Arg(40000)->Unit(benchmark::kMillisecond);

void findNoGuid(benchmark::State& state) {
  const auto data = std::make_shared<Data>();
  for (std::int64_t i = 0; i < state.range(0); ++i) data->create<FcWall>();
  const Guid guid = Guid::generate();
  for (auto _ : state) benchmark::DoNotOptimize(data->entityByGuid(guid));
}
BENCHMARK(findNoGuid)->Arg(100000)->Unit(benchmark::kMicrosecond);

void firstPropertySetOfMany(benchmark::State& state) {
  auto data = std::make_shared<Data>();
  const auto wall = data->create<FcWall>();
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    const auto set = data->create<FcPropertySet>();
    set->setName("Pset");
    const auto relation = data->create<FcRelDefinesByProperties>();
    relation->setRelatingPropertyDefinition(set);
    relation->insertRelatedObjects(wall);
  }
  for (auto _ : state)
    benchmark::DoNotOptimize(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset"));
}
BENCHMARK(firstPropertySetOfMany)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qor::fc
