#include "Fc/Resource/GeometricModel/FcCsgSolid.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcCsgPrimitive3D.h"

namespace qor::fc::resource::geometricmodel {

void FcCsgSolid::draw(const FcDrawParams& params) const {
  if (const auto root = rootItem())
    params->drawConstRepresentationItem(root, params, generate::draw::SurfaceDrawType::Surface);
}

void FcCsgSolid::transform(const math::Matrix& matrix) {
  if (const auto root = rootItem()) root->transform(matrix);
}

std::optional<math::Extent> FcCsgSolid::boundingBox(const FcParams& params) const {
  const auto root = rootItem();
  return root ? root->boundingBox(params) : std::nullopt;
}

std::shared_ptr<geometry::FcRepresentationItem> FcCsgSolid::rootItem() const {
  switch (m_TreeRootExpression.type()) {
    case FcCsgSelect::Types::BooleanResult:
      return m_TreeRootExpression.BooleanResult();
    case FcCsgSelect::Types::CsgPrimitive3D:
      return m_TreeRootExpression.CsgPrimitive3D();
    case FcCsgSelect::Types::NotSet:
      break;
  }
  return nullptr;
}

}  // namespace qor::fc::resource::geometricmodel
