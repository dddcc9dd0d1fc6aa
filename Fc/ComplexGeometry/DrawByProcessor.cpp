#include "Fc/Drawing/DrawByProcessor.h"

#include <memory>
#include <utility>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcExplicitGeometryTask.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {

void drawByProcessor(const resource::geometry::FcRepresentationItem& item,
                     const FcDrawParams& params, const std::source_location& where) {
  const auto* processor = getCurrentComplexGeometryProcessor();
  if (!processor) {
    report(item, "No FcComplexGeometryProcessorInterface implementation set.", where);
    return;
  }
  const auto result = processor->processAndCast<FcPolygonalFaceSetResult>(
      FcExplicitGeometryTask(FcParams(params), item));
  if (!result) return;
  for (auto& faceSet : result->takeFaceSets()) params->polygonalFaceSet(std::move(faceSet));
}

}  // namespace qor::fc
