// What a host does with draw calls: triangles from faces, measures, pictures, files.
//   TargetBenchmarks [--benchmark_filter=...]
// items_per_second counts triangles, but in pictures of one size their pixels. The argument of the
// growing ones is doubled: the rate must not fall.
#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>
#include <numeric>
#include <sstream>

#include "Host/Targets/GltfWriter.h"
#include "Host/Targets/MeshMeasure.h"
#include "Host/Targets/ScenePicture.h"
#include "Host/Targets/SceneTarget.h"
#include "Host/Targets/Triangulator.h"

namespace qor::host::targets {
namespace {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::TriangulatedFaceSetOpenGL;
using math::Point3d;

const math::CurveDiscretization discretization(0.002, 16, 72);

/// A wavy closed surface around an axis, of quadrilaterals.
PolygonalFaceSetOpenGL wavyTube(std::uint32_t faces) {
  PolygonalFaceSetOpenGL set;
  const std::uint32_t around = 100, along = faces / around;
  for (std::uint32_t i = 0; i <= along; ++i)
    for (std::uint32_t k = 0; k < around; ++k) {
      const double angle = 2 * std::numbers::pi * k / around;
      const double radius = 2 + std::sin(0.1 * i) + 0.2 * std::sin(5 * angle);
      set.coordinates.emplace_back(radius * std::cos(angle), radius * std::sin(angle), 0.05 * i);
    }
  for (std::uint32_t i = 0; i < along; ++i)
    for (std::uint32_t k = 0; k < around; ++k) {
      const std::uint32_t a = i * around + k, b = i * around + (k + 1) % around;
      set.faces.push_back({{a, b, b + around, a + around}});
    }
  return set;
}

TriangulatedFaceSetOpenGL triangles(std::uint32_t count) {
  PolygonalFaceSetOpenGL quads = wavyTube(count / 2);
  TriangulatedFaceSetOpenGL set;
  for (const auto& face : quads.faces) {
    set.triangles.push_back({face.outer[0], face.outer[1], face.outer[2]});
    set.triangles.push_back({face.outer[0], face.outer[2], face.outer[3]});
  }
  set.setVertexData(std::move(quads.coordinates));
  return set;
}

Scene tubes(std::size_t count, std::uint32_t faces) {
  SceneTarget target(discretization);
  for (std::size_t i = 0; i < count; ++i) {
    target.startObject(nullptr);
    target.vTransformationMultiply(
        math::Matrix::createTranslation({8.0 * static_cast<double>(i % 10), 0, 0}),
        math::MatrixMultiplyOrder::left);
    target.polygonalFaceSet(wavyTube(faces));
    target.vTransformationSet({});
    target.stopObject();
  }
  return target.takeScene();
}

template <class Count>
void setItems(benchmark::State& state, Count each) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(each));
}

void trianglesToTarget(benchmark::State& state) {
  const auto set = triangles(static_cast<std::uint32_t>(state.range(0)));
  for (auto _ : state) {
    SceneTarget target(discretization);
    target.triangulatedFaceSet(TriangulatedFaceSetOpenGL(set));
    benchmark::DoNotOptimize(target.takeScene());
  }
  setItems(state, set.triangles.size());
}
BENCHMARK(trianglesToTarget)->RangeMultiplier(2)->Range(1 << 17, 1 << 20);

void quadrilateralsToTarget(benchmark::State& state) {
  const auto set = wavyTube(static_cast<std::uint32_t>(state.range(0)));
  for (auto _ : state) {
    SceneTarget target(discretization);
    target.polygonalFaceSet(PolygonalFaceSetOpenGL(set));
    benchmark::DoNotOptimize(target.takeScene());
  }
  setItems(state, set.faces.size() * 2);
}
BENCHMARK(quadrilateralsToTarget)->RangeMultiplier(2)->Range(1 << 17, 1 << 20);

/// One polygon of very many points, with a hole that follows its outline.
void concavePolygon(benchmark::State& state) {
  const auto count = static_cast<std::uint32_t>(state.range(0));
  std::vector<Point3d> points;
  Triangulator::Indices outer, hole;
  for (const double scale : {1.0, 0.9})
    for (std::uint32_t i = 0; i < count / 2; ++i) {
      const double angle = 4 * std::numbers::pi * i / count;
      const double radius = scale * (100 + std::sin(angle * 200));
      (scale == 1 ? outer : hole).push_back(static_cast<std::uint32_t>(points.size()));
      points.emplace_back(radius * std::cos(angle), radius * std::sin(angle), 0);
    }
  Triangulator triangulator;
  std::size_t made = 0;
  for (auto _ : state) {
    Triangulator::Indices found;
    triangulator.triangulate(points, outer, {hole}, found);
    made = found.size() / 3;
  }
  setItems(state, made);
}
BENCHMARK(concavePolygon)->RangeMultiplier(2)->Range(1 << 10, 1 << 20);

/// One polygon of very many teeth.
void jaggedPolygon(benchmark::State& state) {
  const auto count = static_cast<std::uint32_t>(state.range(0));
  std::vector<Point3d> points;
  Triangulator::Indices outer(count);
  std::iota(outer.begin(), outer.end(), 0U);
  for (std::uint32_t i = 0; i < count; ++i) {
    const double angle = 2 * std::numbers::pi * i / count;
    const double radius = 100 + 30 * std::sin(angle * 60) + (i % 2 == 0 ? 0 : 1);
    points.emplace_back(radius * std::cos(angle), radius * std::sin(angle), 0);
  }
  Triangulator triangulator;
  for (auto _ : state) {
    Triangulator::Indices found;
    triangulator.triangulate(points, outer, {}, found);
    benchmark::DoNotOptimize(found.data());
  }
  setItems(state, count);
}
BENCHMARK(jaggedPolygon)->RangeMultiplier(2)->Range(1 << 10, 1 << 20);

void measure(benchmark::State& state) {
  const Scene scene = tubes(1, static_cast<std::uint32_t>(state.range(0)));
  const Mesh& mesh = scene.objects[0].content.mesh;
  for (auto _ : state) benchmark::DoNotOptimize(measureMesh(mesh.points, mesh.triangles));
  setItems(state, mesh.triangles.size() / 3);
}
BENCHMARK(measure)->RangeMultiplier(2)->Range(1 << 15, 1 << 18);

void picture(benchmark::State& state) {
  const Scene scene = tubes(10, static_cast<std::uint32_t>(state.range(0) / 20));
  for (auto _ : state) benchmark::DoNotOptimize(pictureOf(scene, View::iso, 1600, 1200));
  setItems(state, state.range(0));
}
BENCHMARK(picture)->RangeMultiplier(4)->Range(1 << 14, 1 << 20)->Unit(benchmark::kMillisecond);

void glb(benchmark::State& state) {
  const Scene scene = tubes(10, static_cast<std::uint32_t>(state.range(0) / 20));
  for (auto _ : state) {
    std::ostringstream out;
    writeGlb(scene, out);
    benchmark::DoNotOptimize(out);
  }
  setItems(state, state.range(0));
}
BENCHMARK(glb)->RangeMultiplier(2)->Range(1 << 17, 1 << 19)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qor::host::targets
