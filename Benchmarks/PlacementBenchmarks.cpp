// Placement chains into frames.
#include <benchmark/benchmark.h>

#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

namespace qor::fc {
namespace {

using math::Matrix;
using resource::geometricconstraint::FcLocalPlacement;
using resource::geometry::makePlacement;

/// Eight placements on each other, turned or only moved.
std::shared_ptr<FcLocalPlacement> chain(bool turned) {
  std::shared_ptr<FcLocalPlacement> placement;
  for (int depth = 0; depth < 8; ++depth) {
    auto next = makeEntity<FcLocalPlacement>();
    next->setRelativePlacement(makePlacement(Matrix::createZRotate(turned ? depth * 0.3 : 0) *
                                             Matrix::createTranslation({1, 2, 3})));
    if (placement) next->setPlacementRelTo(std::move(placement));
    placement = std::move(next);
  }
  return placement;
}

void chainOfEight(benchmark::State& state) {
  const auto placement = chain(state.range(0) != 0);
  for (auto _ : state) benchmark::DoNotOptimize(placement->placementGet(false));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(chainOfEight)->ArgName("turned")->Arg(0)->Arg(1);

}  // namespace
}  // namespace qor::fc
