#include "Fc/Core/ProductExtension/FcSpace.h"

#include "Fc/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "Fc/Drawing/FcGenerateParams.h"

namespace qor::fc::core::productextension {

void FcSpace::doGenerate(FcGenerateParams& params) const {
  const auto boundaries = BoundedBy().lock();
  params.afterwards({boundaries.begin(), boundaries.end()},
                    [this, &params] { FcSpatialElement::doGenerate(params); });
}

}  // namespace qor::fc::core::productextension
