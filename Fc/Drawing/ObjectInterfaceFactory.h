#pragma once

#include <memory>

#include "Fc/Drawing/ObjectInterface.h"

namespace qor::fc {

/// Says under which object a root is drawn.
class QOR_API ObjectInterfaceFactory {
 public:
  virtual ~ObjectInterfaceFactory() = default;

  /// Null: the root isn't represented. The factory keeps the object, and may answer the same one
  /// for all roots.
  virtual ObjectInterface* object(const std::shared_ptr<core::kernel::FcRoot>& root) const = 0;
};

}  // namespace qor::fc
