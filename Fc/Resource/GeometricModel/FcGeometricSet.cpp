#include "Fc/Resource/GeometricModel/FcGeometricSet.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/BoxUnion.h"
#include "Fc/Resource/Geometry/FcGeometricRepresentationItem.h"

namespace qor::fc::resource::geometricmodel {

void FcGeometricSet::draw(const FcDrawParams& params) const {
  for (const FcGeometricSetSelect& element : m_Elements)
    if (const auto item = element.item())
      params->drawConstRepresentationItem(item, params, generate::draw::SurfaceDrawType::Surface);
}

void FcGeometricSet::transform(const math::Matrix& matrix) {
  for (const FcGeometricSetSelect& element : m_Elements) element.transform(matrix);
}

std::optional<math::Extent> FcGeometricSet::boundingBox(const FcParams& params) const {
  std::vector<std::shared_ptr<geometry::FcGeometricRepresentationItem>> items;
  items.reserve(m_Elements.size());
  for (const FcGeometricSetSelect& element : m_Elements) items.push_back(element.item());
  return unitedBox(items, params);
}

}  // namespace qor::fc::resource::geometricmodel
