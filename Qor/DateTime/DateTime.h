#pragma once

#include <chrono>
#include <optional>

namespace qor {

/// A date of the Gregorian calendar with a time of that day, to the millisecond, as a clock on the
/// wall shows it.
struct DateTime {
  std::chrono::year_month_day date{};
  std::chrono::milliseconds timeOfDay{};
  /// How far the clock is ahead of UTC, where that is known.
  std::optional<std::chrono::minutes> utcOffset{};

  friend bool operator==(const DateTime&, const DateTime&) = default;
};

}  // namespace qor
