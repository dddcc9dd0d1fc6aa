#include "Fc/Resource/Representation/FcRepresentationContext.h"

#include "Fc/Model/NotImplemented.h"

namespace qor::fc::resource::representation {

bool FcRepresentationContext::generate(FcGenerateParams& /*params*/) const {
  assertNotImplemented(
      "FcRepresentationContext::generate(FcGenerateParams &) not implemented for class: ", *this);
  return true;
}

}  // namespace qor::fc::resource::representation
