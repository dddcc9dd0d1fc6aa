#include <benchmark/benchmark.h>

#include <cmath>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/FcIndexedPolygonalFace.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgbList.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcFace.h"
#include "Fc/Resource/Topology/FcFaceOuterBound.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Qor/Draw/DrawInterface.h"

// How fast tessellated items and shells reach a target that throws away what it gets. Where a size
// is given, the time of each row should be that of the row above times the ratio of their sizes.
namespace {

using namespace qor;
using namespace qor::fc;
using namespace qor::fc::resource;
using namespace qor::fc::resource::geometricmodel;

class ThrowingAway : public FcDrawInterface, public generate::draw::DrawInterface {
 public:
  ThrowingAway() : DrawInterfaceBase(math::CurveDiscretization(2e-3, 16, 72)) {}

  void vTransformationSet(const math::Matrix&) override {}
  math::Matrix transformationGet() const override { return {}; }
  void vTransformationMultiply(const math::Matrix&, math::MatrixMultiplyOrder) override {}
  void vPolyline(const std::vector<math::Point3d>&) override {}
  void vPolygon(const std::vector<Loop3d>&,
                std::optional<generate::draw::SurfaceDrawType>) override {}
  using DrawInterfaceBase::triangulatedFaceSet;
  void triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& set) override {
    benchmark::DoNotOptimize(set.triangles.data());
  }
  void polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& set) override {
    benchmark::DoNotOptimize(set.faces.data());
  }
  void vTextLiteral(const char*, std::size_t) override {}
  void drawConstRepresentationItem(std::shared_ptr<const geometry::FcRepresentationItem> item,
                                   const FcDrawParams& params,
                                   generate::draw::SurfaceDrawType) override {
    item->draw(params);
  }
  void drawRepresentationItem(std::shared_ptr<geometry::FcRepresentationItem> item,
                              const FcDrawParams& params,
                              generate::draw::SurfaceDrawType) override {
    item->draw(params);
  }
  void startObject(const generate::ObjectInterface*) override {}
  void stopObject() override {}
  bool boAttribute(const generate::AttributeInterface&) override { return false; }
  void setMaterial(std::shared_ptr<const generate::draw::Material>) override {}
  std::shared_ptr<const generate::draw::Material> getMaterial() const override { return nullptr; }
  void setColor(const generate::draw::Color&) override {}
  generate::draw::Color getColor() const override { return {}; }
};

/// A wavy net of side x side points.
std::shared_ptr<FcCartesianPointList3D> net(std::int64_t side) {
  std::vector<math::Point3d> points;
  for (std::int64_t y = 0; y < side; ++y)
    for (std::int64_t x = 0; x < side; ++x)
      points.emplace_back(double(x), double(y), std::sin(double(x + y)));
  auto list = makeEntity<FcCartesianPointList3D>();
  list->setPoints(points);
  return list;
}

std::shared_ptr<FcTriangulatedFaceSet> triangles(std::int64_t count) {
  const auto side = static_cast<std::int64_t>(std::sqrt(double(count) / 2)) + 2;
  std::vector<std::array<measure::FcPositiveInteger, 3>> list;
  for (std::int64_t at = 1; std::ssize(list) < count; ++at) {
    if (at % side == 0) continue;
    list.push_back({at, at + 1, at + side});
    list.push_back({at + 1, at + side + 1, at + side});
  }
  auto set = makeEntity<FcTriangulatedFaceSet>();
  set->setCoordinates(net(side + 2));
  set->setCoordIndex(std::move(list));
  return set;
}

std::shared_ptr<FcPolygonalFaceSet> quads(std::int64_t count) {
  const auto side = static_cast<std::int64_t>(std::sqrt(double(count))) + 2;
  std::vector<std::shared_ptr<FcIndexedPolygonalFace>> faces;
  for (std::int64_t at = 1; std::ssize(faces) < count; ++at) {
    if (at % side == 0) continue;
    faces.push_back(makeEntity<FcIndexedPolygonalFace>());
    faces.back()->setCoordIndex({at, at + 1, at + side + 1, at + side});
  }
  auto set = makeEntity<FcPolygonalFaceSet>();
  set->setCoordinates(net(side + 2));
  set->setFaces(std::move(faces));
  return set;
}

std::shared_ptr<presentationappearance::FcIndexedColourMap> coloured(
    const std::shared_ptr<FcTessellatedFaceSet>& set, std::int64_t faces, std::int64_t colours) {
  std::vector<measure::FcPositiveInteger> index;
  for (std::int64_t k = 0; k < faces; ++k) index.emplace_back(k % colours + 1);
  auto list = makeEntity<presentationappearance::FcColourRgbList>();
  list->setColourList(std::vector<std::array<measure::FcNormalisedRatioMeasure, 3>>(
      static_cast<std::size_t>(colours), {0.5, 0.5, 0.5}));
  auto map = makeEntity<presentationappearance::FcIndexedColourMap>();
  map->setColours(list);
  map->setColourIndex(std::move(index));
  map->setMappedTo(set);
  return map;
}

/// A closed shell around side x side boxes: quads over shared points.
std::shared_ptr<topology::FcClosedShell> shell(std::int64_t faces) {
  const auto side = static_cast<std::int64_t>(std::sqrt(double(faces))) + 2;
  std::vector<std::shared_ptr<geometry::FcCartesianPoint>> points;
  for (std::int64_t i = 0; i < side * (side + 2); ++i)
    points.push_back(
        geometry::makePoint(math::Point3d(double(i % side), double(i / side), double(i % 7))));
  std::vector<std::shared_ptr<topology::FcFace>> list;
  for (std::int64_t i = 0; std::ssize(list) < faces; ++i) {
    if ((i + 1) % side == 0) continue;
    const auto at = static_cast<std::size_t>(i);
    const auto row = static_cast<std::size_t>(side);
    auto loop = makeEntity<topology::FcPolyLoop>();
    loop->setPolygon({points[at], points[at + 1], points[at + row + 1], points[at + row]});
    auto bound = makeEntity<topology::FcFaceOuterBound>();
    bound->setBound(loop);
    bound->setOrientation(true);
    auto face = makeEntity<topology::FcFace>();
    face->setBounds({bound});
    list.push_back(face);
  }
  auto result = makeEntity<topology::FcClosedShell>();
  result->setCfsFaces(std::move(list));
  return result;
}

void drawAll(benchmark::State& state, const geometry::FcRepresentationItem& item,
             std::int64_t pieces) {
  ThrowingAway target;
  const FcDrawParams params(target);
  for (auto _ : state) item.draw(params);
  state.SetItemsProcessed(state.iterations() * pieces);
}

void Triangles(benchmark::State& state) {
  drawAll(state, *triangles(state.range(0)), state.range(0));
}
BENCHMARK(Triangles)->Arg(12)->Arg(1000)->Arg(100'000)->Arg(200'000)->Arg(400'000);

void TrianglesOfColours(benchmark::State& state) {
  const auto set = triangles(100'000);
  const auto map = coloured(set, 100'000, state.range(0));
  drawAll(state, *set, 100'000);
}
BENCHMARK(TrianglesOfColours)->Arg(1)->Arg(100)->Arg(10'000)->Arg(20'000);

void Quads(benchmark::State& state) { drawAll(state, *quads(state.range(0)), state.range(0)); }
BENCHMARK(Quads)->Arg(6)->Arg(100'000)->Arg(200'000)->Arg(400'000);

void QuadsOfColours(benchmark::State& state) {
  const auto set = quads(100'000);
  const auto map = coloured(set, 100'000, state.range(0));
  drawAll(state, *set, 100'000);
}
BENCHMARK(QuadsOfColours)->Arg(100)->Arg(10'000)->Arg(20'000);

void ShellFaces(benchmark::State& state) { drawAll(state, *shell(state.range(0)), state.range(0)); }
BENCHMARK(ShellFaces)->Arg(6)->Arg(100'000)->Arg(200'000)->Arg(400'000);

void Blocks(benchmark::State& state) {
  auto block = makeEntity<FcBlock>();
  block->setXLength(1);
  block->setYLength(2);
  block->setZLength(3);
  drawAll(state, *block, 1);
}
BENCHMARK(Blocks);

void AddPoint(benchmark::State& state) {
  for (auto _ : state) {
    auto set = makeEntity<FcPolygonalFaceSet>();
    for (std::int64_t i = 0; i < state.range(0); ++i)
      benchmark::DoNotOptimize(set->addPoint({double(i / 2), double(i % 2), 0}));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(AddPoint)->Arg(10'000)->Arg(20'000)->Arg(400'000);

}  // namespace
