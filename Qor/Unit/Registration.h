#pragma once

#include <memory>
#include <vector>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/QuantityId.h"

namespace qor::unit {

class QuantityBase;

/// The register of all quantities of the process; those that the library knows are in it from the
/// start. May be used from any thread.
class QOR_API Registration {
 public:
  /// The registered quantity of that id, which is `quantity` itself when there was none before.
  /// Throws `qor::exception` when the id belongs to a quantity of other dimensions.
  static QuantityBase& registerQuantity(std::unique_ptr<QuantityBase> quantity);
  /// Null for none.
  static QuantityBase* find(QuantityId id);
  /// By ascending id.
  static std::vector<QuantityBase*> all();
};

}  // namespace qor::unit
