#include "Fc/Resource/Geometry/FcGeometricRepresentationItem.h"

#include "Fc/Model/NotImplemented.h"

namespace qor::fc::resource::geometry {

std::optional<math::Extent2d> FcGeometricRepresentationItem::planarBox(
    const FcParams& /*params*/) const {
  assertNotImplemented("planarBox(const qor::fc::FcParams&) not implemented for class: ", *this);
  return {};
}

}  // namespace qor::fc::resource::geometry
