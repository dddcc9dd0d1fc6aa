#pragma once

#include "Qor/Draw/DrawInterfaceBase.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::document {

/// Something that can draw all of itself.
class QOR_API DocumentBase {
 public:
  virtual ~DocumentBase() = default;

  virtual void generate(draw::DrawInterfaceBase& target) const = 0;
};

}  // namespace qor::generate::document
