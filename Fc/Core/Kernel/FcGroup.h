#pragma once

#include "Fc/Core/Kernel/FcGroupAttributes.h"

namespace qor::fc::core::kernel {

/// IfcGroup, Core.Kernel: objects that belong together for some purpose.
class QOR_API FcGroup : public FcGroupAttributes {
 public:
  /// Puts the object into the group.
  std::shared_ptr<FcRelAssignsToGroup> isGroupedByConnect(
      Data& data, FcObjectDefinition& object,
      const std::function<void(FcRelAssignsToGroup&)>& initialise = {});
};

}  // namespace qor::fc::core::kernel
