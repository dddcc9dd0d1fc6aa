#pragma once

#include "Qor/Id/Guid.h"
#include "Qor/Platform/Export.h"

namespace qor {

/// Something that a guid identifies.
class QOR_API GuidInterface {
 public:
  virtual ~GuidInterface() = default;
  virtual Guid getGuid() const = 0;
  /// False when the guid can't be changed.
  virtual bool setGuid(const Guid& guid) = 0;
};

}  // namespace qor
