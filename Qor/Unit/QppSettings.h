#pragma once

#include <string>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/DisplayUnit.h"

namespace qor::unit {

/// How the numbers of a quantity are shown: in which unit and how exactly.
struct QOR_API QppSettings {
  static constexpr int maxDecimals = 15;

  DisplayUnit unit{};
  /// Behind the point, 0 to `maxDecimals`; anything else counts as the nearer of these.
  int decimals = 3;
  /// "2.500"; false cuts the zeros at the end: "2.5".
  bool keepZeros = true;

  /// "2.500 m²" for the SI number 2.5; without its unit "2.500". A point whatever the locale, no
  /// grouping, no "-0.000". The symbol stands behind a blank, that of degrees right behind the
  /// number.
  ///
  /// What the decimals can't show is never shown as 0: it gets three significant digits ("0.0004",
  /// "2e-07"), unless it is below 1e-12 in the unit shown, which is rounding error. Numbers of
  /// 1e15 and more get 15 significant digits. "NaN", "∞" and "-∞" stand for what is no number.
  std::string writeToString(double number, bool withUnit = true) const;

  friend bool operator==(const QppSettings&, const QppSettings&) = default;
};

}  // namespace qor::unit
