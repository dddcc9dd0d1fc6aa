#pragma once

#include <cstddef>
#include <vector>

#include "Qor/Unit/QppSettings.h"
#include "Qor/Unit/QuantityId.h"

namespace qor::unit {

/// What people see of a quantity until a host changes it.
struct StandardDisplay {
  std::vector<DisplayUnit> units;  ///< that of the SI first
  std::size_t shown = 0;           ///< the one of `units` that numbers are shown in
  int decimals = 3;
  bool keepZeros = true;

  QppSettings settings() const { return {units[shown], decimals, keepZeros}; }
};

/// For an id that isn't of the library: one unit without a symbol.
const StandardDisplay& standardDisplay(QuantityId id);

}  // namespace qor::unit
