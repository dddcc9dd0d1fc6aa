#pragma once

#include <cmath>
#include <string>

namespace qor::unit {

/// A unit in which numbers are shown to people, and what it is worth: the SI number is
/// `shown * factor + offset`.
struct DisplayUnit {
  std::string symbol{};  ///< UTF-8, "mm"; empty for numbers without a unit
  double factor = 1;     ///< SI units in one of this unit: 0.001 for "mm"
  double offset = 0;     ///< the SI number at its zero: 273.15 for "°C"

  /// A unit that can't convert both ways is none: the factor must be finite and not 0.
  bool isValid() const { return std::isfinite(factor) && factor != 0 && std::isfinite(offset); }
  double fromSi(double number) const { return (number - offset) / factor; }
  double toSi(double shown) const { return shown * factor + offset; }

  friend bool operator==(const DisplayUnit&, const DisplayUnit&) = default;
};

}  // namespace qor::unit
