// What items answer by tasks of the complex geometry processor.

#include <memory>

#include "Fc/ComplexGeometry/FcCalculateDistanceTask.h"
#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcDoubleResult.h"
#include "Fc/ComplexGeometry/FcGetSurfacesTask.h"
#include "Fc/ComplexGeometry/FcSurfacesResult.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Report.h"

namespace qor::fc::resource::geometry {
namespace {

const FcComplexGeometryProcessorInterface* processorFor(const char* function) {
  const auto* processor = getCurrentComplexGeometryProcessor();
  if (!processor)
    report("No FcComplexGeometryProcessorInterface implementation set.", function, __LINE__);
  return processor;
}

std::shared_ptr<const FcRepresentationItem> shared(const FcRepresentationItem& item) {
  return std::static_pointer_cast<const FcRepresentationItem>(item.shared_from_this());
}

}  // namespace

std::vector<math::_3d::Polygon> FcRepresentationItem::getSurfaces(
    const FcParams& params, const math::Matrix& matrix) const {
  const auto* processor =
      processorFor("qor::fc::resource::geometry::FcRepresentationItem::getSurfaces");
  if (!processor) return {};
  const auto result =
      processor->processAndCast<FcSurfacesResult>(FcGetSurfacesTask(params, shared(*this), matrix));
  return result ? result->polygons() : std::vector<math::_3d::Polygon>();
}

std::optional<double> FcRepresentationItem::getDistanceToOtherItem(
    const FcParams& params, const math::Matrix& thisMatrix, const FcRepresentationItem& other,
    const math::Matrix& otherMatrix) const {
  const auto* processor =
      processorFor("qor::fc::resource::geometry::FcRepresentationItem::getDistanceToOtherItem");
  if (!processor) return {};
  const auto result = processor->processAndCast<FcDoubleResult>(
      FcCalculateDistanceTask(params, shared(*this), shared(other), thisMatrix, otherMatrix));
  if (!result) return {};
  return result->value();
}

}  // namespace qor::fc::resource::geometry
