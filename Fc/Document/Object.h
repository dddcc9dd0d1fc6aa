#pragma once

#include <memory>

#include "Fc/Drawing/ObjectInterface.h"

namespace qor::fc::document {

/// The entity that a document is drawing. It keeps the entity alive until the next one is set.
class QOR_API Object : public ObjectInterface {
 public:
  void objectSet(std::shared_ptr<core::kernel::FcRoot> root) override;
  void objectSet(const FcBase* entity) override;
  const FcBase* objectGet() const override { return m_entity.get(); }
  FcBase* objectGet() override { return m_entity.get(); }

 private:
  std::shared_ptr<FcBase> m_entity;
};

}  // namespace qor::fc::document
