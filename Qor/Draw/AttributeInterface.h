#pragma once

#include <string>

#include "Qor/Platform/Export.h"

namespace qor::generate {

/// A named value that whoever draws tells a target about the object that is open.
class QOR_API AttributeInterface {
 public:
  virtual ~AttributeInterface() = default;

  virtual std::string name() const = 0;
  virtual std::string valueAsText() const = 0;
};

}  // namespace qor::generate
