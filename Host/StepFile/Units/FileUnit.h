#pragma once

#include <cstdint>
#include <optional>

#include "Fc/Resource/Measure/FcUnit.h"
#include "Host/StepFile/Units/UnitConversion.h"

namespace qor::host::step {

/// A unit that a unit assignment of a file lists.
struct FileUnit {
  std::uint64_t assignment;            ///< number of the assignment
  fc::resource::measure::FcUnit unit;  ///< as the file has it
  /// What makes SI of the file's numbers; empty where they are left as they are, since the unit has
  /// no known size, or contradicts one that was listed before.
  std::optional<UnitConversion> toSi;
};

}  // namespace qor::host::step
