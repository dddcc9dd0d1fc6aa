#include "Fc/Document/Object.h"

#include "Fc/Core/Kernel/FcRoot.h"

namespace qor::fc::document {

void Object::objectSet(std::shared_ptr<core::kernel::FcRoot> root) { m_entity = std::move(root); }

void Object::objectSet(const FcBase* entity) {
  m_entity = entity ? std::const_pointer_cast<FcBase>(entity->shared_from_this()) : nullptr;
}

}  // namespace qor::fc::document
