#include "Fc/Resource/Representation/FcProductRepresentation.h"

#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::resource::representation {

void FcProductRepresentation::generate(FcGenerateParams& params) const {
  for (const auto& representation : Representations())
    if (representation && params.isEnabled(*representation)) representation->generate(params);
}

}  // namespace qor::fc::resource::representation
