#include "Fc/Resource/GeometricModel/FcCsgSolid.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Geometry/SelectedItem.h"

namespace qor::fc::resource::geometricmodel {

using geometry::selectedItem;

void FcCsgSolid::draw(const FcDrawParams& params) const {
  if (const auto root = selectedItem(TreeRootExpression()))
    params->drawConstRepresentationItem(root, params, generate::draw::SurfaceDrawType::Surface);
}

void FcCsgSolid::transform(const math::Matrix& matrix) {
  if (const auto root = selectedItem(TreeRootExpression())) root->transform(matrix);
}

std::optional<math::Extent> FcCsgSolid::boundingBox(const FcParams& params) const {
  const auto root = selectedItem(TreeRootExpression());
  return root ? root->boundingBox(params) : std::nullopt;
}

}  // namespace qor::fc::resource::geometricmodel
