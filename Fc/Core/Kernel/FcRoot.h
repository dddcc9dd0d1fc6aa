#pragma once

#include <memory>

#include "Fc/Core/Kernel/FcRootAttributes.h"
#include "Fc/Reflection/GuidChanges.h"
#include "Qor/Id/GuidInterface.h"

namespace qor::fc {
class Data;
class FcGenerateParams;
}  // namespace qor::fc

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

  void setGlobalId(const Guid& guid) {
    FcRootAttributes::setGlobalId(guid);
    noteGuidChange();
  }

  /// The model that the root was last added to; null when it was added to none, or that is gone.
  std::shared_ptr<Data> data() const { return m_data.lock(); }

  /// Draws the root and all below it, once in a walk.
  void generate(FcGenerateParams& params) const;

 protected:
  FcRoot() = default;
  /// A copy gets its source's guid, or a fresh one where the settings say so.
  void doAssign(const FcBase& source, FcCopySettings& settings) override;

  /// What a class does in a walk; nothing here. It draws itself, and leaves what is below it to
  /// `FcGenerateParams::afterwards`, so that deep models cost no stack.
  virtual void doGenerate(FcGenerateParams& params) const;
  /// This root as the model holds it. Throws `std::bad_weak_ptr` when no `std::shared_ptr` does.
  std::shared_ptr<FcRoot> sharedRoot() const;

 private:
  friend class qor::fc::Data;
  friend class qor::fc::FcGenerateParams;
  std::weak_ptr<Data> m_data;
};

}  // namespace qor::fc::core::kernel
