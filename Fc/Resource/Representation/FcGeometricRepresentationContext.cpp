#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"

#include "Fc/Drawing/FcGenerateParams.h"

namespace qor::fc::resource::representation {

bool FcGeometricRepresentationContext::generate(FcGenerateParams& params) const {
  return !params.contextFilter() || params.contextFilter()->shouldGenerate(*this);
}

}  // namespace qor::fc::resource::representation
