#pragma once

#include <cmath>

namespace qor::host::step {

/// How a number in one unit becomes one in another: times a factor, through a divisor, plus an
/// offset.
///
/// Factor and divisor stand apart so that millimetres are divided by 1000: 1001 mm give 1.001 m,
/// where a product with 0.001 is off in its last bit.
struct UnitConversion {
  double factor = 1;
  double divisor = 1;
  double offset = 0;

  double operator()(double value) const { return value * factor / divisor + offset; }
  /// The value that becomes this one.
  double inverse(double value) const { return (value - offset) * divisor / factor; }

  bool isIdentity() const { return factor == divisor && offset == 0; }
  /// Neither zero nor infinite nor none: nothing is lost.
  bool isSound() const {
    const double both = factor / divisor;
    return std::isfinite(both) && both > 0 && std::isfinite(1 / both) && std::isfinite(offset);
  }
  double scale() const { return factor / divisor; }

  /// The same for differences of values: a degree of temperature more, not the temperature.
  UnitConversion ofDifferences() const { return {factor, divisor, 0}; }
  /// First this one, then `next`.
  UnitConversion then(const UnitConversion& next) const {
    return {factor * next.factor, divisor * next.divisor, next(offset)};
  }
  /// Of a unit to that power; without the offset.
  UnitConversion power(int exponent) const {
    const int size = std::abs(exponent);
    const double top = std::pow(factor, size);
    const double bottom = std::pow(divisor, size);
    return exponent < 0 ? UnitConversion{bottom, top} : UnitConversion{top, bottom};
  }

  friend bool operator==(const UnitConversion&, const UnitConversion&) = default;
};

}  // namespace qor::host::step
