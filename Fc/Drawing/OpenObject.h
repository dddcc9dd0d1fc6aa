#pragma once

#include "Qor/Draw/GenerateInterface.h"

namespace qor::fc {

/// An object that is open on a target for a scope.
class OpenObject {
 public:
  OpenObject(generate::GenerateInterface& target, const generate::ObjectInterface* object)
      : m_target(target) {
    m_target.startObject(object);
  }
  OpenObject(const OpenObject&) = delete;
  OpenObject& operator=(const OpenObject&) = delete;
  ~OpenObject() { m_target.stopObject(); }

 private:
  generate::GenerateInterface& m_target;
};

}  // namespace qor::fc
