#include "Host/Targets/DrawnEntity.h"

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Drawing/ObjectInterface.h"

namespace qor::host::targets {

using fc::core::kernel::FcRoot;

const fc::FcBase* drawnEntity(const generate::ObjectInterface* object) {
  if (const auto* entity = dynamic_cast<const fc::FcBase*>(object)) return entity;
  const auto* holder = dynamic_cast<const fc::ObjectInterface*>(object);
  return holder ? holder->objectGet() : nullptr;
}

std::string guidText(const fc::FcBase& entity) {
  const auto* root = fc::fcCast<FcRoot>(&entity);
  return root ? root->GlobalId().toString(false) : std::string();
}

std::string nameText(const fc::FcBase& entity) {
  const auto* root = fc::fcCast<FcRoot>(&entity);
  return root ? std::string(root->Name().value_or("")) : std::string();
}

}  // namespace qor::host::targets
