#pragma once

#include <cstdint>

#include "Fc/Reflection/ClassInfo.h"

namespace qor::host::step {

/// What a class has to do with units, beyond measures that are in the units of the model.
enum class UnitRole : std::uint8_t {
  none,
  /// Says what the units are: read before all others, and its numbers stay as they are.
  unit,
  /// Its values may be in a unit of their own, which it names: converted once it is read.
  ownUnit,
  /// The same, but the unit or the values stand in another entity: converted once all are read.
  sharedUnit,
  /// Has parameters of a curve or surface, which may be angles: converted once all are read.
  parameter,
};

/// Compares ranges of class ids; ask once a class.
UnitRole unitRoleOf(const fc::ClassInfo& info);

}  // namespace qor::host::step
