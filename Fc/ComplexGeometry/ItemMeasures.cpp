// What items answer by tasks of the complex geometry processor.

#include <memory>
#include <source_location>

#include "Fc/ComplexGeometry/FcCalculateDistanceTask.h"
#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcDoubleResult.h"
#include "Fc/ComplexGeometry/FcGetSurfacesTask.h"
#include "Fc/ComplexGeometry/FcSurfacesResult.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc::resource::geometry {
namespace {

const FcComplexGeometryProcessorInterface* processorFor(
    const FcRepresentationItem& item,
    const std::source_location& where = std::source_location::current()) {
  const auto* processor = getCurrentComplexGeometryProcessor();
  if (!processor) report(item, "No FcComplexGeometryProcessorInterface implementation set.", where);
  return processor;
}

std::shared_ptr<const FcRepresentationItem> shared(const FcRepresentationItem& item) {
  return std::static_pointer_cast<const FcRepresentationItem>(item.shared_from_this());
}

}  // namespace

std::vector<math::_3d::Polygon> FcRepresentationItem::getSurfaces(
    const FcParams& params, const math::Matrix& matrix) const {
  const auto* processor = processorFor(*this);
  if (!processor) return {};
  const auto result =
      processor->processAndCast<FcSurfacesResult>(FcGetSurfacesTask(params, shared(*this), matrix));
  return result ? result->polygons() : std::vector<math::_3d::Polygon>();
}

std::optional<double> FcRepresentationItem::getDistanceToOtherItem(
    const FcParams& params, const math::Matrix& thisMatrix, const FcRepresentationItem& other,
    const math::Matrix& otherMatrix) const {
  const auto* processor = processorFor(*this);
  if (!processor) return {};
  const auto result = processor->processAndCast<FcDoubleResult>(
      FcCalculateDistanceTask(params, shared(*this), shared(other), thisMatrix, otherMatrix));
  if (!result) return {};
  return result->value();
}

}  // namespace qor::fc::resource::geometry
