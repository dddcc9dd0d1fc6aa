// The ports that are nested in objects and in their types.

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/FcRelNests.h"
#include "Fc/Core/Kernel/FcTypeProduct.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Drawing/OpenObject.h"
#include "Fc/Shared/BuildingServiceElements/FcDistributionPort.h"

namespace qor::fc::core::kernel {

using generate::draw::TransformationGuard;
using shared::buildingserviceelements::FcDistributionPort;

std::vector<std::shared_ptr<const FcDistributionPort>> FcObjectDefinition::getDistributionPorts()
    const {
  std::vector<std::shared_ptr<const FcDistributionPort>> ports;
  IsNestedBy().forEach([&ports](const std::shared_ptr<FcRelNests>& relation) {
    for (const auto& part : relation->RelatedObjects())
      if (auto port = fcCast<FcDistributionPort>(part)) ports.push_back(std::move(port));
  });
  return ports;
}

void FcTypeProduct::drawPorts(FcGenerateParams& params) const {
  FcDrawInterface& target = *params.drawInterface();
  for (const auto& port : getDistributionPorts()) {
    ObjectInterface* const portObject =
        params.object(std::const_pointer_cast<FcDistributionPort>(port));
    if (!portObject) continue;
    const OpenObject openPort(params.generateInterface(), portObject);
    const TransformationGuard portGuard(target);
    if (const auto placement = port->absolutePlacement())
      target.vTransformationMultiply(*placement, math::MatrixMultiplyOrder::left);
    port->generate(params);
  }
}

}  // namespace qor::fc::core::kernel
