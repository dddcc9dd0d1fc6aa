#include "Fc/ComplexGeometry/DrawByProcessor.h"

#include <memory>
#include <utility>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcExplicitGeometryTask.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Report.h"

namespace qor::fc {

void drawByProcessor(const resource::geometry::FcRepresentationItem& item,
                     const FcDrawParams& params, const char* function) {
  const auto* processor = getCurrentComplexGeometryProcessor();
  if (!processor) {
    resource::report("No FcComplexGeometryProcessorInterface implementation set.", function,
                     __LINE__);
    return;
  }
  const auto result = processor->processAndCast<FcPolygonalFaceSetResult>(
      FcExplicitGeometryTask(FcParams(params), item));
  if (!result) return;
  for (auto& faceSet : result->takeFaceSets()) params->polygonalFaceSet(std::move(faceSet));
}

}  // namespace qor::fc
