#include "Fc/Resource/Geometry/FcRepresentationItem.h"

#include "Fc/Model/NotImplemented.h"
#include "Fc/Resource/Geometry/RepresentationOfClass.h"
#include "Fc/Resource/PresentationAppearance/FcPresentationStyle.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"

namespace qor::fc::resource::geometry {

void FcRepresentationItem::draw(const FcDrawParams& /*params*/) const {
  assertNotImplemented("draw(const qor::fc::FcDrawParams&) is not implemented for: ", *this);
}

void FcRepresentationItem::transform(const math::Matrix& /*matrix*/) {
  assertNotImplemented("transform(const qor::math::_3d::Matrix&) is not implemented for: ", *this);
}

std::optional<math::Extent> FcRepresentationItem::boundingBox(const FcParams& /*params*/) const {
  assertNotImplemented("boundingBox() not implemented for class: ", *this);
  return {};
}

generate::draw::Representation FcRepresentationItem::representationGet() const {
  return representationOfClass(classId());
}

void FcRepresentationItem::forEachPresentationStyle(
    const std::function<void(const presentationappearance::FcPresentationStyle&)>& callback) const {
  const auto styled = StyledByItem().lock();
  if (!styled) return;
  for (const auto& style : styled->Styles())
    if (style) callback(*style);
}

}  // namespace qor::fc::resource::geometry
