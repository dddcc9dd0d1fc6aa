#include "Fc/ComplexGeometry/FcGetSurfacesTask.h"

#include <utility>

#include "Fc/ComplexGeometry/FcSurfacesResult.h"
#include "Fc/ComplexGeometry/SolidModeller.h"

namespace qor::fc {

FcGetSurfacesTask::FcGetSurfacesTask(
    FcParams params, std::shared_ptr<const resource::geometry::FcRepresentationItem> item,
    const math::Matrix& matrix)
    : FcComplexGeometryTask(std::move(params)), m_item(std::move(item)), m_matrix(matrix) {}

FcGetSurfacesTask::~FcGetSurfacesTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcGetSurfacesTask::process() const {
  const auto* modeller = SolidModeller::get();
  if (!modeller) return nullptr;
  return std::make_unique<FcSurfacesResult>(modeller->surfaces({m_item, m_matrix}, params()));
}

}  // namespace qor::fc
