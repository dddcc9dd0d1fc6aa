#include "Fc/Core/ProductExtension/FcRelSpaceBoundary.h"

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Drawing/OpenObject.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionGeometry.h"

namespace qor::fc::core::productextension {

void FcRelSpaceBoundary::doGenerate(FcGenerateParams& params) const {
  FcDrawInterface* const target = params.drawInterface();
  ObjectInterface* const object = target ? params.object(sharedRoot()) : nullptr;
  if (!object) return;
  const OpenObject open(params.generateInterface(), object);
  const generate::draw::TransformationGuard guard(*target);
  if (const auto* space = fcCast<kernel::FcProduct>(RelatingSpace().getEntity())) {
    const auto placement = space->absolutePlacement();
    if (!placement) return;
    target->vTransformationMultiply(*placement, math::MatrixMultiplyOrder::left);
  }
  if (ConnectionGeometry() && params.isEnabled(*this)) ConnectionGeometry()->generate(params);
}

}  // namespace qor::fc::core::productextension
