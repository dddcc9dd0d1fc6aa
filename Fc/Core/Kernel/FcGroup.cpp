#include "Fc/Core/Kernel/FcGroup.h"

#include "Fc/Core/Kernel/FcRelAssignsToGroup.h"
#include "Fc/Data.h"

namespace qor::fc::core::kernel {

std::shared_ptr<FcRelAssignsToGroup> FcGroup::isGroupedByConnect(
    Data& data, FcObjectDefinition& object,
    const std::function<void(FcRelAssignsToGroup&)>& initialise) {
  auto relation = IsGroupedBy().lockFirst();
  if (!relation) {
    relation = data.create<FcRelAssignsToGroup>();
    relation->setGlobalId(Guid::generate());
    relation->setRelatingGroup(std::static_pointer_cast<FcGroup>(shared_from_this()));
    if (initialise) initialise(*relation);
  }
  relation->insertRelatedObjects(
      std::static_pointer_cast<FcObjectDefinition>(object.shared_from_this()));
  return relation;
}

}  // namespace qor::fc::core::kernel
