#include "Fc/Drawing/FcClip.h"

#include <algorithm>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcImplicitClippingTask.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {
namespace {

bool isNothing(const std::vector<generate::draw::PolygonalFaceSetOpenGL>& faceSets) {
  return std::all_of(faceSets.begin(), faceSets.end(),
                     [](const auto& faceSet) { return faceSet.faces.empty(); });
}

/// The target draws what is left of an item.
class DrawingClipped {
 public:
  explicit DrawingClipped(bool& flag) : m_flag(flag) { m_flag = true; }
  DrawingClipped(const DrawingClipped&) = delete;
  DrawingClipped& operator=(const DrawingClipped&) = delete;
  ~DrawingClipped() { m_flag = false; }

 private:
  bool& m_flag;
};

std::unique_ptr<FcPolygonalFaceSetResult> cutBy(
    const FcComplexGeometryProcessorInterface& processor,
    const std::shared_ptr<const resource::geometry::FcRepresentationItem>& item,
    const math::Matrix& itemMatrix, const FcParams& params, const FcClip& clip) {
  return processor.processAndCast<FcPolygonalFaceSetResult>(
      FcImplicitClippingTask(params, item, itemMatrix, clip.clipObjects()));
}

}  // namespace

void FcClip::drawItemClipped(
    const std::shared_ptr<const resource::geometry::FcRepresentationItem>& item,
    const FcDrawParams& params) {
  const auto* processor = getCurrentComplexGeometryProcessor();
  if (!processor) return;
  const auto result = cutBy(*processor, item, params->transformationGet(), FcParams(params), *this);
  const DrawingClipped drawing(m_drawingClipped);
  if (!result) {
    report(*item, "The item has no solid that openings could be cut out of; it is drawn whole.");
    return params->drawConstRepresentationItem(item, params,
                                               generate::draw::SurfaceDrawType::Surface);
  }
  auto faceSets = result->takeFaceSets();
  if (isNothing(faceSets)) ++m_cutAwayCount;
  for (auto& faceSet : faceSets) params->polygonalFaceSet(std::move(faceSet));
}

std::vector<generate::draw::PolygonalFaceSetOpenGL> FcClip::getClippedItems(
    const std::shared_ptr<const resource::geometry::FcRepresentationItem>& item,
    const math::Matrix& itemMatrix, const FcParams& params, const FcClip& clip) {
  const auto* processor = getCurrentComplexGeometryProcessor();
  if (!processor) return {};
  const auto result = cutBy(*processor, item, itemMatrix, params, clip);
  if (!result) return {};
  return result->takeFaceSets();
}

}  // namespace qor::fc
