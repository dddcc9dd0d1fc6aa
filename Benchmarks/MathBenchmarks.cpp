// Circles and arcs into points.
#include <benchmark/benchmark.h>

#include <numbers>

#include "Qor/Math/CurveDiscretization.h"

namespace qor::math {
namespace {

using std::numbers::pi;

const CurveDiscretization millimetre(0.001, 8, 72);

void circle(benchmark::State& state) {
  double radius = 0.5;
  std::size_t points = 0;
  for (auto _ : state) {
    const auto ring = millimetre.discretizeCircle(Point2d(3, 4), radius);
    benchmark::DoNotOptimize(ring.data());
    points += ring.size();
    radius += 1e-9;
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["points/s"] = benchmark::Counter(double(points), benchmark::Counter::kIsRate);
}
BENCHMARK(circle);

void arcByAngles(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(
        millimetre.discretizeCircularArc(Point2d(3, 4), 0.5, 1, pi / 2).data());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(arcByAngles);

void arcThroughThreePoints(benchmark::State& state) {
  const Point3d a(1000, 2000, 30), b(1000.3, 2000.1, 30.2), c(1000.5, 2000.5, 30.3);
  for (auto _ : state) benchmark::DoNotOptimize(millimetre.discretizeCircularArc(a, b, c).data());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(arcThroughThreePoints);

}  // namespace
}  // namespace qor::math
