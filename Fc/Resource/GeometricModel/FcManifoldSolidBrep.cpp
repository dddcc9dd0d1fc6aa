#include "Fc/Resource/GeometricModel/FcManifoldSolidBrep.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::geometricmodel {

void FcManifoldSolidBrep::draw(const FcDrawParams& params) const {
  if (hasOuter("qor::fc::resource::geometricmodel::FcManifoldSolidBrep::draw"))
    params->drawConstRepresentationItem(Outer(), params, generate::draw::SurfaceDrawType::Surface);
}

void FcManifoldSolidBrep::transform(const math::Matrix& matrix) {
  if (hasOuter("qor::fc::resource::geometricmodel::FcManifoldSolidBrep::transform"))
    Outer()->transform(matrix);
}

std::optional<math::Extent> FcManifoldSolidBrep::boundingBox(const FcParams& params) const {
  if (!hasOuter("qor::fc::resource::geometricmodel::FcManifoldSolidBrep::boundingBox")) return {};
  return Outer()->boundingBox(params);
}

bool FcManifoldSolidBrep::hasOuter(const char* operation) const {
  if (!Outer() && Assert::isEnabled())
    Assert::addAssert({.message = "Outer should exist",
                       .function = operation,
                       .source = "FcManifoldSolidBrep",
                       .line = __LINE__});
  return Outer() != nullptr;
}

}  // namespace qor::fc::resource::geometricmodel
