// Files in and out: the real buildings beside the repository, where they are, and one of them
// repeated to 200 MB.
//   StepBenchmarks [--benchmark_filter=...]
// bytes_per_second counts bytes of the file; heap_per_byte is what the loaded model takes.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "Benchmarks/HeapInUse.h"
#include "Benchmarks/RepeatedModel.h"
#include "Host/StepFile/Scanner.h"
#include "Host/StepFile/StepReader.h"
#include "Host/StepFile/StepWriter.h"

namespace qor::host::step {
namespace {

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void setBytes(benchmark::State& state, const std::string& text) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

// What a process meets that loads its first model: no page of the heap is there yet. A fault costs
// more than a microsecond on virtual machines, so a load into warm memory says little of a real one.
void giveFreeMemoryBack() {
#if defined(__GLIBC__)
  malloc_trim(0);
#endif
}

// Typed, references resolved, texts and selects decoded, inverse attributes in step.
void load(benchmark::State& state, const std::string& text) {
  double heapPerByte = 0;
  for (auto _ : state) {
    state.PauseTiming();
    giveFreeMemoryBack();
    const std::size_t before = heapInUse();
    state.ResumeTiming();
    ReadResult result = readStep(text, {.keepNumbers = false});
    state.PauseTiming();
    heapPerByte = static_cast<double>(heapInUse() - before) / static_cast<double>(text.size());
    result = {};
    state.ResumeTiming();
  }
  state.counters["heap_per_byte"] = heapPerByte;
  setBytes(state, text);
}

// Only finds where the tokens of the file begin and end.
void findTokens(benchmark::State& state, const std::string& text) {
  for (auto _ : state) {
    Scanner scanner(text);
    std::size_t tokens = 0;
    const char* at = scanner.begin();
    while ((at = scanner.skipSpace(at)) != scanner.end()) {
      ++tokens;
      if (*at == '\'')
        at = scanner.string(at).next;
      else if (isNameChar(*at))
        while (at != scanner.end() && isNameChar(*at)) ++at;
      else
        ++at;
    }
    benchmark::DoNotOptimize(tokens);
  }
  setBytes(state, text);
}

void write(benchmark::State& state, const std::string& text) {
  const ReadResult model = readStep(text);
  std::string out;
  for (auto _ : state) {
    writeStep(*model.data, out, {.header = model.header, .numbers = model.instances});
    benchmark::DoNotOptimize(out.data());
  }
  setBytes(state, out);
}

void registerModel(const std::string& name, std::string text) {
  const auto* kept = new std::string(std::move(text));  // lives as long as the benchmarks
  using Function = void (*)(benchmark::State&, const std::string&);
  const std::pair<const char*, Function> kinds[] = {
      {"load/", load}, {"findTokens/", findTokens}, {"write/", write}};
  for (const auto& [what, function] : kinds)
    benchmark::RegisterBenchmark((what + name).c_str(), function, std::cref(*kept))
        ->Unit(benchmark::kMillisecond);
}

void registerModels() {
  const std::filesystem::path folder =
      std::filesystem::path(FC_SHARED_DIR) / "models" / "buildings";
  if (!std::filesystem::is_directory(folder)) return;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string name = entry.path().stem().string();
    registerModel(name, contentOf(entry.path()));
    if (name == "AC20-FZK-Haus")
      registerModel(name + "-repeated", repeatedModel(contentOf(entry.path()), 210'000'000));
  }
}

}  // namespace
}  // namespace qor::host::step

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  qor::host::step::registerModels();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
