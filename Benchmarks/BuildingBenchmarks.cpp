// Whole models from the loaded model to the meshes of a scene that is thrown away: once complete,
// once without cutting openings out. Real files are read beside the repository.
//   BuildingBenchmarks [--benchmark_filter=...]
// Counters: the time for each megabyte of the file, and the heap that the scene takes.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>

#include "Benchmarks/HeapInUse.h"
#include "Host/Cli/ModelDrawing.h"
#include "Host/Cli/Watch.h"
#include "Host/Targets/SceneTarget.h"
#include "Qor/Assert/Assert.h"

namespace qor::host {
namespace {

const math::CurveDiscretization discretization(0.002, 16, 72);

void draw(benchmark::State& state, const std::filesystem::path& file, bool noOpenings) {
  const step::ReadResult model = step::readStepFile(file);
  const cli::DrawingOptions options{.file = file, .noOpenings = noOpenings};
  const auto status = fc::DrawStatus::createDefaultForProject(*model.data);
  std::ostringstream messages;
  cli::Watch watch(messages);
  cli::Console console{messages, messages, watch};
  double sceneBytes = 0;
  for (auto _ : state) {
    const std::size_t before = heapInUse();
    targets::SceneTarget target(discretization);
    drawModel(model, options, status, nullptr, target, console);
    const targets::Scene scene = target.takeScene();
    state.PauseTiming();
    sceneBytes = static_cast<double>(heapInUse()) - static_cast<double>(before);
    state.ResumeTiming();
  }
  const double megabytes = static_cast<double>(std::filesystem::file_size(file)) / 1e6;
  state.counters["s_per_MB"] = benchmark::Counter(
      megabytes, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  state.counters["scene_MB"] = sceneBytes / 1e6;
}

void registerModel(const std::filesystem::path& file) {
  if (!std::filesystem::exists(file)) {
    std::cerr << file << " isn't there\n";
    return;
  }
  const std::string name = file.stem().string();
  for (const bool noOpenings : {false, true})
    benchmark::RegisterBenchmark(((noOpenings ? "uncut/" : "complete/") + name).c_str(), draw, file,
                                 noOpenings)
        ->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace qor::host

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  qor::Assert::setHandler([](const qor::AssertInfo&) {});
  const std::filesystem::path models = std::filesystem::path(FC_SHARED_DIR) / "models";
  for (const char* file :
       {"buildings/AC20-FZK-Haus.ifc", "buildings/Ifc4_SampleHouse.ifc", "buildings/duplex.ifc",
        "buildings/great_court_roof.ifc", "samples/basin-advanced-brep.ifc"})
    qor::host::registerModel(models / file);
  benchmark::RunSpecifiedBenchmarks();
}
