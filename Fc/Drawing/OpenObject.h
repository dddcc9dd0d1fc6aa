#pragma once

#include "Qor/Assert/WayOut.h"
#include "Qor/Draw/GenerateInterface.h"

namespace qor::fc {

/// An object that is open on a target for a scope. What `stopObject` throws reaches the host,
/// unless another exception is on its way.
class OpenObject {
 public:
  OpenObject(generate::GenerateInterface& target, const generate::ObjectInterface* object)
      : m_target(target) {
    m_target.startObject(object);
  }
  OpenObject(const OpenObject&) = delete;
  OpenObject& operator=(const OpenObject&) = delete;
  ~OpenObject() noexcept(false) {
    m_wayOut.leave([this] { m_target.stopObject(); });
  }

 private:
  generate::GenerateInterface& m_target;
  WayOut m_wayOut;
};

}  // namespace qor::fc
