#include "Fc/ComplexGeometry/FcExplicitGeometryTask.h"

#include <utility>

#include "Fc/ComplexGeometry/CopyOfItem.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/ComplexGeometry/SolidModeller.h"

namespace qor::fc {

FcExplicitGeometryTask::FcExplicitGeometryTask(FcParams params,
                                               const resource::geometry::FcRepresentationItem& item)
    : FcComplexGeometryTask(std::move(params)), m_item(copyOfItem(item)) {}

FcExplicitGeometryTask::~FcExplicitGeometryTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcExplicitGeometryTask::process() const {
  const auto* modeller = SolidModeller::get();
  return std::make_unique<FcPolygonalFaceSetResult>(modeller ? modeller->faceSets(*m_item, params())
                                                             : SolidModeller::FaceSets());
}

}  // namespace qor::fc
