#include "Fc/Shared/BuildingServiceElements/FcDistributionPort.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Drawing/MarkerCone.h"

namespace qor::fc::shared::buildingserviceelements {

using generate::draw::Color;

namespace {

Color colorOf(const std::optional<FcDistributionPortTypeEnum>& type) {
  switch (type ? type->value() : FcDistributionPortTypeEnum::WIRELESS) {
    case FcDistributionPortTypeEnum::CABLE:
      return {1, 0, 0};
    case FcDistributionPortTypeEnum::CABLECARRIER:
      return {1, 1, 0};
    case FcDistributionPortTypeEnum::DUCT:
      return {0, 1, 0};
    case FcDistributionPortTypeEnum::PIPE:
      return {0, 0, 1};
    case FcDistributionPortTypeEnum::USERDEFINED:
      return {0.5F, 0, 0.5F};
    case FcDistributionPortTypeEnum::NOTDEFINED:
      return {0.5F, 0.5F, 0.5F};
    default:
      return {0, 0, 0};
  }
}

}  // namespace

void FcDistributionPort::doGenerate(FcGenerateParams& params) const {
  FcProduct::doGenerate(params);
  if (params.drawInterface() && params.drawPortMarkers)
    params.afterwards({}, [this, &params] { drawMarker(params); });
}

void FcDistributionPort::drawMarker(FcGenerateParams& params) const {
  const auto placement = absolutePlacement();
  if (!placement) return;
  FcDrawInterface& target = *params.drawInterface();
  const generate::draw::TransformationGuard guard(target);
  target.vTransformationMultiply(*placement, math::MatrixMultiplyOrder::left);
  utilities::drawMarkerCone(FcDrawParams(target), {}, 0.05, 0.02, colorOf(PredefinedType()));
}

}  // namespace qor::fc::shared::buildingserviceelements
