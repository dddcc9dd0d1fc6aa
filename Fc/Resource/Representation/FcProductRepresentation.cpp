#include "Fc/Resource/Representation/FcProductRepresentation.h"

#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::resource::representation {

void FcProductRepresentation::generate(FcGenerateParams& params) const {
  for (const auto& representation : Representations())
    if (representation && params.isEnabled(*representation)) representation->generate(params);
}

void FcProductRepresentation::transform(
    const math::Matrix& matrix,
    const std::function<bool(std::shared_ptr<FcRepresentation>)>& filter) {
  for (const auto& representation : Representations()) {
    if (!representation || !filter(representation)) continue;
    for (const auto& item : representation->Items())
      if (item) item->transform(matrix);
  }
}

}  // namespace qor::fc::resource::representation
