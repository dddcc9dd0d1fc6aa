#pragma once

#include <memory>

#include "Fc/Document/DocumentInterface.h"
#include "Fc/Document/Object.h"
#include "Fc/Drawing/ObjectInterfaceFactory.h"
#include "Fc/Tree/DrawStatus.h"

namespace qor::fc {
class Data;
}

namespace qor::fc::document {

/// Draws a whole model. One walk at a time: all roots are told to the target as the one object that
/// the document has, which holds the present one, and the last one until the next walk.
class QOR_API Document : public DocumentInterface, public ObjectInterfaceFactory {
 public:
  /// Shares the model with the host; a null pointer draws nothing.
  explicit Document(const std::shared_ptr<Data>& data);

  using DocumentInterface::generate;
  /// Walks from the model's project down, with tolerances for a model of 1000 m that hold for the
  /// walk alone. A model without a project draws nothing, and neither does a target that isn't a
  /// `GenerateInterface` as well.
  void generate(FcDrawInterface& target) const override;
  /// The one object, whatever the root.
  ObjectInterface* object(const std::shared_ptr<core::kernel::FcRoot>& root) const override;

  /// What is drawn; everything at first.
  DrawStatus& drawStatus() { return m_drawStatus; }
  const DrawStatus& drawStatus() const { return m_drawStatus; }

 private:
  std::shared_ptr<Data> m_data;
  mutable Object m_object;
  DrawStatus m_drawStatus;
};

}  // namespace qor::fc::document
