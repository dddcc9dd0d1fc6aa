#include "Fc/Resource/GeometricModel/FcGeometricSet.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Geometry/SelectedItem.h"

namespace qor::fc::resource::geometricmodel {

using geometry::selectedItem;

void FcGeometricSet::draw(const FcDrawParams& params) const {
  for (const FcGeometricSetSelect& element : Elements())
    if (const auto item = selectedItem(element))
      params->drawConstRepresentationItem(item, params, generate::draw::SurfaceDrawType::Surface);
}

void FcGeometricSet::transform(const math::Matrix& matrix) {
  for (const FcGeometricSetSelect& element : Elements())
    if (const auto item = selectedItem(element)) item->transform(matrix);
}

std::optional<math::Extent> FcGeometricSet::boundingBox(const FcParams& params) const {
  math::Extent extent;
  for (const FcGeometricSetSelect& element : Elements()) {
    const auto item = selectedItem(element);
    if (!item) continue;
    const auto box = item->boundingBox(params);
    if (!box) return {};
    extent = extent.uniteWith(*box);
  }
  return extent.isValid() ? std::optional(extent) : std::nullopt;
}

}  // namespace qor::fc::resource::geometricmodel
