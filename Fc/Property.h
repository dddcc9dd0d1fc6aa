#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Qor/Object/PropertyId.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// One attribute of one entity, as an inspector lists it. Keeps its entity alive.
class QOR_API Property {
 public:
  Property(object::PropertyId id, std::shared_ptr<FcBase> entity)
      : m_id(std::move(id)), m_entity(std::move(entity)) {}

  const object::PropertyId& id() const { return m_id; }
  const std::optional<std::string>& text() const { return m_text; }
  const std::shared_ptr<FcBase>& entity() const { return m_entity; }
  const std::vector<std::shared_ptr<FcBase>>& furtherEntities() const { return m_furtherEntities; }
  bool isLocal() const { return m_local; }

 private:
  object::PropertyId m_id;
  std::optional<std::string> m_text;
  std::shared_ptr<FcBase> m_entity;
  std::vector<std::shared_ptr<FcBase>> m_furtherEntities;
  bool m_local = true;
};

}  // namespace qor::fc
