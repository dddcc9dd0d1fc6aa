#include "Fc/Document/DocumentInterface.h"

#include "Fc/Document/FcDrawInterfaceWrapper.h"

namespace qor::fc::document {

void DocumentInterface::generate(generate::draw::DrawInterfaceBase& target) const {
  if (auto* const drawInterface = dynamic_cast<FcDrawInterface*>(&target))
    return generate(*drawInterface);
  FcDrawInterfaceWrapper wrapper(target);
  generate(static_cast<FcDrawInterface&>(wrapper));
}

std::weak_ptr<FcDocumentProductInterface> DocumentInterface::getProductInterface() const {
  return {};
}

}  // namespace qor::fc::document
