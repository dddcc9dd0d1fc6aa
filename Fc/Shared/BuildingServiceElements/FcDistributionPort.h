#pragma once

#include "Fc/Shared/BuildingServiceElements/FcDistributionPortAttributes.h"

namespace qor::fc::shared::buildingserviceelements {

/// IfcDistributionPort, Shared.Building Service Elements: where something flows in or out.
class QOR_API FcDistributionPort : public FcDistributionPortAttributes {
 protected:
  /// What every product does; then, where the walk wants it, a small cone in the port's frame, in a
  /// colour by what flows.
  void doGenerate(FcGenerateParams& params) const override;

 private:
  void drawMarker(FcGenerateParams& params) const;
};

}  // namespace qor::fc::shared::buildingserviceelements
