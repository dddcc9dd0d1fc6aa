#include "Fc/Resource/GeometricModel/FcAdvancedBrepWithVoids.h"

#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::geometricmodel {

void FcAdvancedBrepWithVoids::draw(const FcDrawParams& params) const {
  if (Assert::isEnabled())
    Assert::addAssert(
        {.message = "Not implemented for FcAdvancedBrepWithVoids, voids will not be drawn",
         .function = "qor::fc::resource::geometricmodel::FcAdvancedBrepWithVoids::draw",
         .source = "FcAdvancedBrepWithVoids",
         .line = __LINE__});
  FcManifoldSolidBrep::draw(params);
}

}  // namespace qor::fc::resource::geometricmodel
