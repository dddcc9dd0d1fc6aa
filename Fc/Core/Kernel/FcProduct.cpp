#include "Fc/Core/Kernel/FcProduct.h"

#include "Fc/Drawing/DrawOutcomes.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Drawing/OpenObject.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricConstraint/FcObjectPlacement.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Qor/Assert/Exception.h"

namespace qor::fc::core::kernel {

using generate::draw::TransformationGuard;
using math::MatrixMultiplyOrder;

namespace {

void leaveOut(const FcGenerateParams& params, DrawOutcome reason) {
  if (params.outcomes) params.outcomes->leaveOut(reason);
}

}  // namespace

void FcProduct::doGenerate(FcGenerateParams& params) const {
  const bool isSkipped = params.skipObjectCallback && params.skipObjectCallback(GlobalId());
  if (params.drawInterface()) {
    const ProductOutcome outcome(params.outcomes, *this, *params.drawInterface());
    if (isSkipped)
      leaveOut(params, DrawOutcome::filtered);
    else
      drawAsObject(params);
  }
  if (!isSkipped) params.handleRepresentationState(*this);
  FcObjectDefinition::doGenerate(params);
}

std::optional<math::Matrix> FcProduct::absolutePlacement() const {
  if (!ObjectPlacement()) return math::Matrix();
  try {
    return ObjectPlacement()->placementGet(false);
  } catch (const qor::exception& problem) {
    report(*this, std::string(ifcName()) + " " + GlobalId().toString(false) +
                      " has no computable placement (" + ObjectPlacement()->ifcName() +
                      "): " + problem.what());
    return {};
  }
}

void FcProduct::drawAsObject(FcGenerateParams& params) const {
  ObjectInterface* const object = params.object(sharedRoot());
  if (!object) return leaveOut(params, DrawOutcome::filtered);
  const auto placement = absolutePlacement();
  FcDrawInterface& target = *params.drawInterface();
  const OpenObject open(params.generateInterface(), object);
  const TransformationGuard guard(target);
  if (ObjectPlacement() && placement)
    target.vTransformationMultiply(*placement, MatrixMultiplyOrder::left);
  if (params.isEnabled(*this)) {
    if (Representation() && placement) Representation()->generate(params);
  } else {
    leaveOut(params, DrawOutcome::hidden);
    if (params.disabledProductCallback) params.disabledProductCallback(params, *this);
  }
}

}  // namespace qor::fc::core::kernel
