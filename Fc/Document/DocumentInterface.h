#pragma once

#include <memory>

#include "Qor/Draw/DocumentBase.h"

namespace qor::fc {
class FcDrawInterface;
}

namespace qor::fc::document {

/// What a host's document may offer of its products.
class FcDocumentProductInterface;

/// A document that draws a model.
class QOR_API DocumentInterface : public generate::document::DocumentBase {
 public:
  /// Draws into any target; one that is no `FcDrawInterface` through an `FcDrawInterfaceWrapper`.
  void generate(generate::draw::DrawInterfaceBase& target) const override;
  virtual void generate(FcDrawInterface& target) const = 0;
  /// None.
  virtual std::weak_ptr<FcDocumentProductInterface> getProductInterface() const;
};

}  // namespace qor::fc::document
