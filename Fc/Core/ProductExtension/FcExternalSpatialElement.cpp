#include "Fc/Core/ProductExtension/FcExternalSpatialElement.h"

#include "Fc/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "Fc/Drawing/FcGenerateParams.h"

namespace qor::fc::core::productextension {

void FcExternalSpatialElement::doGenerate(FcGenerateParams& params) const {
  const auto boundaries = BoundedBy().lock();
  params.afterwards({boundaries.begin(), boundaries.end()},
                    [this, &params] { FcSpatialElement::doGenerate(params); });
}

}  // namespace qor::fc::core::productextension
