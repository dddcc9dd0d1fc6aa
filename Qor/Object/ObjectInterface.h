#pragma once

#include "Qor/Platform/Export.h"

namespace qor::generate {

/// An object as a draw or generate target meets it: something to hold on to and to cast to what it
/// may be.
class QOR_API ObjectInterface {
 public:
  virtual ~ObjectInterface() = default;
};

}  // namespace qor::generate
