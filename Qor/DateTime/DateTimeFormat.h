#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Qor/DateTime/DateTime.h"
#include "Qor/Platform/Export.h"

namespace qor {

/// A text form of dates and times, known by its number.
class QOR_API DateTimeFormat {
 public:
  /// ISO 8601, extended form.
  enum Form : int {
    isoDate = 3,  ///< "2024-05-31"
    isoDateTime =
        4  ///< "2024-05-31T12:30:00", with ".250" and "Z" or "+01:00" where they are there
  };

  /// A number that is no `Form` makes a format that reads and writes nothing.
  explicit DateTimeFormat(int form) : m_form(form) {}

  /// Empty for a text that isn't wholly of this form, or names a day or time that doesn't exist
  /// (the 30th of February, 24:00:00). A date has time 0; fractions finer than a millisecond are
  /// cut off. Years are 0 to 9999.
  std::optional<DateTime> fromString(std::string_view text) const;
  /// Empty for a date that doesn't exist or whose year isn't of four digits.
  std::string toString(const DateTime& value) const;

 private:
  int m_form;
};

}  // namespace qor
