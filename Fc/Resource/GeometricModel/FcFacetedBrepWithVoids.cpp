#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoids.h"

#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::geometricmodel {

void FcFacetedBrepWithVoids::draw(const FcDrawParams& params) const {
  if (Assert::isEnabled())
    Assert::addAssert(
        {.message = "Not implemented for FcFacetedBrepWithVoids, voids will not be drawn",
         .function = "qor::fc::resource::geometricmodel::FcFacetedBrepWithVoids::draw",
         .source = "FcFacetedBrepWithVoids",
         .line = __LINE__});
  FcManifoldSolidBrep::draw(params);
}

}  // namespace qor::fc::resource::geometricmodel
