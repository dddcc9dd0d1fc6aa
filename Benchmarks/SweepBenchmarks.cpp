// Swept solids to a target that throws them away.
#include <benchmark/benchmark.h>

#include <memory>
#include <utility>

#include "Fc/Drawing/FcDrawInterface.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Profile/FcArbitraryClosedProfileDef.h"
#include "Fc/Resource/Profile/FcIShapeProfileDef.h"
#include "Fc/Resource/Profile/FcRectangleProfileDef.h"

namespace qor::fc {
namespace {

using namespace resource;

class Discard : public FcDrawInterface {
 public:
  Discard() : DrawInterfaceBase(math::CurveDiscretization(0.002, 16, 72)) {}

  std::size_t points = 0;

  void vTransformationSet(const math::Matrix& matrix) override { m_frame = matrix; }
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder /*order*/) override {
    m_frame = matrix * m_frame;
  }
  void vPolyline(const std::vector<math::Point3d>& /*points*/) override {}
  void vPolygon(const std::vector<Loop3d>& /*loops*/,
                std::optional<generate::draw::SurfaceDrawType> /*type*/) override {}
  using DrawInterfaceBase::polygonalFaceSet;
  void polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& set) override {
    points += set.coordinates.size();
  }
  void vTextLiteral(const char* /*text*/, std::size_t /*length*/) override {}
  void drawConstRepresentationItem(std::shared_ptr<const geometry::FcRepresentationItem> item,
                                   const FcDrawParams& params,
                                   generate::draw::SurfaceDrawType /*type*/) override {
    item->draw(params);
  }
  void drawRepresentationItem(std::shared_ptr<geometry::FcRepresentationItem> item,
                              const FcDrawParams& params,
                              generate::draw::SurfaceDrawType /*type*/) override {
    item->draw(params);
  }

 private:
  math::Matrix m_frame;
};

std::shared_ptr<geometry::FcPolyline> ring(std::int64_t corners) {
  auto line = std::make_shared<geometry::FcPolyline>();
  for (std::int64_t i = 0; i < corners; ++i) {
    const auto at = math::Vector2d(1, 0).rotate(6.28 * double(i) / double(corners));
    line->pushBackPoints(geometry::makePoint(math::Point2d(at.x, at.y)));
  }
  line->pushBackPoints(line->Points().front());
  return line;
}

std::shared_ptr<profile::FcProfileDef> polygonProfile(std::int64_t corners) {
  auto result = std::make_shared<profile::FcArbitraryClosedProfileDef>();
  result->setOuterCurve(ring(corners));
  return result;
}

std::shared_ptr<profile::FcProfileDef> rectangle() {
  auto result = std::make_shared<profile::FcRectangleProfileDef>();
  result->setXDim(0.2);
  result->setYDim(3.0);
  return result;
}

std::shared_ptr<profile::FcProfileDef> filletedBeam() {
  auto result = std::make_shared<profile::FcIShapeProfileDef>();
  result->setOverallWidth(0.2);
  result->setOverallDepth(0.4);
  result->setWebThickness(0.01);
  result->setFlangeThickness(0.02);
  result->setFilletRadius(measure::FcNonNegativeLengthMeasure(0.015));
  return result;
}

void drawAll(benchmark::State& state, const geometry::FcRepresentationItem& item) {
  Discard target;
  const FcDrawParams params(target);
  for (auto _ : state) item.draw(params);
  state.SetItemsProcessed(state.iterations());
  state.counters["points/s"] =
      benchmark::Counter(static_cast<double>(target.points), benchmark::Counter::kIsRate);
}

void extrude(benchmark::State& state, std::shared_ptr<profile::FcProfileDef> profile) {
  geometricmodel::FcExtrudedAreaSolid solid;
  solid.setSweptArea(std::move(profile));
  solid.setExtrudedDirection(geometry::makeDirection(math::Vector3d(0, 0, 1)));
  solid.setDepth(2.5);
  solid.setPosition(geometry::makePlacement(math::Matrix::createTranslation({1, 2, 3})));
  drawAll(state, solid);
}

void extrudedRectangle(benchmark::State& state) { extrude(state, rectangle()); }
void extrudedFilletedBeam(benchmark::State& state) { extrude(state, filletedBeam()); }
void extrudedPolygon(benchmark::State& state) { extrude(state, polygonProfile(state.range(0))); }
BENCHMARK(extrudedRectangle);
BENCHMARK(extrudedFilletedBeam);
BENCHMARK(extrudedPolygon)->Arg(6)->RangeMultiplier(2)->Range(1 << 12, 1 << 16);

void sweptDisk(benchmark::State& state) {
  auto line = std::make_shared<geometry::FcPolyline>();
  for (std::int64_t i = 0; i < state.range(0); ++i)
    line->pushBackPoints(
        geometry::makePoint(math::Point3d(static_cast<double>(i), static_cast<double>(i % 2), 0)));
  geometricmodel::FcSweptDiskSolid rod;
  rod.setDirectrix(line);
  rod.setRadius(0.01);
  drawAll(state, rod);
}
BENCHMARK(sweptDisk)->Arg(2)->RangeMultiplier(2)->Range(1 << 12, 1 << 15);

}  // namespace
}  // namespace qor::fc
