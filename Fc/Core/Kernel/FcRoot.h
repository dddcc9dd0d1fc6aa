#pragma once

#include <memory>

#include "Fc/Core/Kernel/FcRootAttributes.h"
#include "Qor/Id/GuidInterface.h"

namespace qor::fc {
class Data;
}

namespace qor::fc::core::kernel {

/// IfcRoot, Core.Kernel: what has an identity of its own in a model, and knows the model that it
/// was added to.
class QOR_API FcRoot : public FcRootAttributes, public GuidInterface {
 public:
  Guid getGuid() const override { return GlobalId(); }
  /// Always true. The guid of a listed root should be set before it is first looked up: the model
  /// goes on finding it under the old one.
  bool setGuid(const Guid& guid) override {
    setGlobalId(guid);
    return true;
  }

  /// The model that the root was last added to; null when it was added to none, or that is gone.
  std::shared_ptr<Data> data() const { return m_data.lock(); }

 protected:
  FcRoot() = default;
  /// A copy gets its source's guid, or a fresh one where the settings say so.
  void doAssign(const FcBase& source, FcCopySettings& settings) override;

 private:
  friend class qor::fc::Data;
  std::weak_ptr<Data> m_data;
};

}  // namespace qor::fc::core::kernel
