// What the solid modeller costs: walls cut by openings, chains of half-spaces, shells with curved
// faces. The counter `alone` is the time of the cut and the mesh of Open CASCADE itself on the same
// bodies, in milliseconds.
#include <benchmark/benchmark.h>
#include <BOPAlgo_BOP.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepPrimAPI_MakeBox.hxx>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

#include "Benchmarks/HeapInUse.h"
#include "Fc/ComplexGeometry/Bridge/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/FcImplicitClippingTask.h"
#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcPlane.h"

namespace qor::fc {
namespace {

using resource::geometricmodel::FcBlock;
using resource::geometricmodel::FcBooleanOperand;
using resource::geometricmodel::FcBooleanOperator;
using resource::geometricmodel::FcBooleanResult;
using resource::geometricmodel::FcHalfSpaceSolid;
using resource::geometricmodel::FcRightCircularCylinder;

constexpr double kChordValue = 0.01;

FcParams params() { return FcParams(math::CurveDiscretization(kChordValue, 6, 100)); }

math::Matrix at(double x, double y, double z) { return math::Matrix::createTranslation({x, y, z}); }

std::shared_ptr<FcBlock> block(double x, double y, double z) {
  auto result = std::make_shared<FcBlock>();
  result->setXLength(x);
  result->setYLength(y);
  result->setZLength(z);
  return result;
}

double millisecondsAlone(std::int64_t openings) {
  const TopoDS_Shape wall = BRepPrimAPI_MakeBox(2.0 * double(openings), 0.3, 3).Solid();
  const auto start = std::chrono::steady_clock::now();
  BOPAlgo_BOP cut;
  cut.SetOperation(BOPAlgo_CUT);
  cut.SetFuzzyValue(1e-6);
  cut.AddArgument(wall);
  for (std::int64_t i = 0; i < openings; ++i)
    cut.AddTool(BRepPrimAPI_MakeBox(gp_Pnt(2.0 * double(i) + 0.5, -0.1, 1), 1, 0.5, 1.2).Solid());
  cut.Perform();
  const BRepMesh_IncrementalMesh mesh(cut.Shape(), kChordValue, false, 0.5, false);
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  return time.count();
}

void wallWithOpenings(benchmark::State& state) {
  const auto wall = block(2.0 * double(state.range(0)), 0.3, 3), opening = block(1, 0.5, 1.2);
  std::vector<FcImplicitClippingTask::ClipItem> openings;
  for (std::int64_t i = 0; i < state.range(0); ++i)
    openings.emplace_back(opening, at(2.0 * double(i) + 0.5, -0.1, 1));
  double alone = 1e9;
  for (auto _ : state) {
    const FcImplicitClippingTask task(params(), wall, {}, openings);
    benchmark::DoNotOptimize(task.process());
    state.PauseTiming();
    alone = std::min(alone, millisecondsAlone(state.range(0)));
    state.ResumeTiming();
  }
  state.counters["alone"] = alone;
}
BENCHMARK(wallWithOpenings)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

// Memory must come back: `kept` is what the heap has grown by for each cut, in bytes, when a
// thousand are done and a first one has filled what Open CASCADE keeps for all.
void thousandCuts(benchmark::State& state) {
  const auto wall = block(4, 0.3, 3), opening = block(1, 0.5, 1.2);
  const auto cut = [&] {
    const FcImplicitClippingTask task(params(), wall, {}, {{opening, at(1, -0.1, 1)}});
    benchmark::DoNotOptimize(task.process());
  };
  cut();
  const double before = static_cast<double>(heapInUse());
  constexpr int cuts = 1000;
  for (auto _ : state)
    for (int i = 0; i < cuts; ++i) cut();
  state.counters["kept"] = (static_cast<double>(heapInUse()) - before) /
                           (static_cast<double>(state.iterations()) * cuts);
}
BENCHMARK(thousandCuts)->Unit(benchmark::kMillisecond);

void chainOfHalfSpaces(benchmark::State& state) {
  std::shared_ptr<FcBooleanResult> chain;
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    auto plane = std::make_shared<resource::geometry::FcPlane>();
    plane->setPosition(resource::geometry::makePlacement(
        math::Matrix::createXRotate(0.5 + 0.01 * double(i)) * at(0, 0, 2.9 - 0.01 * double(i))));
    auto halfSpace = std::make_shared<FcHalfSpaceSolid>();
    halfSpace->setBaseSurface(plane);
    auto result = std::make_shared<FcBooleanResult>();
    result->setOperator(FcBooleanOperator::DIFFERENCE);
    result->setFirstOperand(chain ? FcBooleanOperand(chain)
                                  : FcBooleanOperand::fromRepresentationItem(block(10, 0.3, 3)));
    result->setSecondOperand(FcBooleanOperand(halfSpace));
    chain = result;
  }
  for (auto _ : state) {
    const FcParams fine = params();
    benchmark::DoNotOptimize(
        faceSetsFromShapes(chain->ocRepresentation(fine), fine.curveDiscretization()));
  }
}
BENCHMARK(chainOfHalfSpaces)->Arg(50)->Unit(benchmark::kMillisecond);

void blockWithARoundHole(benchmark::State& state) {
  const auto wall = block(2, 2, 0.3);
  auto hole = std::make_shared<FcRightCircularCylinder>();
  hole->setRadius(0.5);
  hole->setHeight(1);
  for (auto _ : state) {
    const FcImplicitClippingTask task(params(), wall, {}, {{hole, at(1, 1, -0.3)}});
    benchmark::DoNotOptimize(task.process());
  }
}
BENCHMARK(blockWithARoundHole)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor::fc
