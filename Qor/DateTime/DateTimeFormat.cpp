#include "Qor/DateTime/DateTimeFormat.h"

#include <algorithm>
#include <cstdio>

namespace qor {

namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr milliseconds wholeDay = hours(24);

// Takes the parts of a text from its front. After the first part that isn't there, nothing is.
class Parts {
 public:
  explicit Parts(std::string_view text) : m_rest(text) {}

  /// Exactly so many digits.
  int number(std::size_t digits) {
    int result = 0;
    if (m_rest.size() < digits) return fail();
    for (const char c : m_rest.substr(0, digits)) {
      if (c < '0' || c > '9') return fail();
      result = result * 10 + (c - '0');
    }
    m_rest.remove_prefix(digits);
    return result;
  }
  bool accept(char c) {
    if (m_rest.empty() || m_rest.front() != c) return false;
    m_rest.remove_prefix(1);
    return true;
  }
  void expect(char c) {
    if (!accept(c)) fail();
  }
  /// The digits that are there, as thousandths.
  milliseconds fraction() {
    const std::size_t count = std::min(m_rest.find_first_not_of("0123456789"), m_rest.size());
    if (count == 0) fail();
    int thousandths = 0;
    for (std::size_t i = 0; i < 3; ++i)
      thousandths = thousandths * 10 + (i < count ? m_rest[i] - '0' : 0);
    m_rest.remove_prefix(count);
    return milliseconds(thousandths);
  }
  bool ok() const { return m_ok; }
  bool atEnd() const { return m_ok && m_rest.empty(); }

 private:
  int fail() {
    m_ok = false;
    m_rest = {};
    return 0;
  }

  std::string_view m_rest;
  bool m_ok = true;
};

std::chrono::year_month_day takeDate(Parts& parts) {
  const int year = parts.number(4);
  parts.expect('-');
  const int month = parts.number(2);
  parts.expect('-');
  const int day = parts.number(2);
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

// Empty for a time that no clock shows.
std::optional<milliseconds> takeTime(Parts& parts) {
  const int hour = parts.number(2);
  parts.expect(':');
  const int minute = parts.number(2);
  parts.expect(':');
  const int second = parts.number(2);
  if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
  const milliseconds whole = hours(hour) + minutes(minute) + seconds(second);
  return parts.accept('.') || parts.accept(',') ? whole + parts.fraction() : whole;
}

std::optional<minutes> takeOffset(Parts& parts) {
  if (parts.accept('Z')) return minutes(0);
  const bool ahead = parts.accept('+');
  if (!ahead && !parts.accept('-')) return std::nullopt;
  const minutes whole = hours(parts.number(2));
  parts.expect(':');
  const minutes offset = whole + minutes(parts.number(2));
  return ahead ? offset : -offset;
}

std::string dateText(const std::chrono::year_month_day& date) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text;
}

std::string timeText(milliseconds time) {
  const std::chrono::hh_mm_ss<milliseconds> clock(time);
  const int fraction = static_cast<int>(clock.subseconds().count());
  char text[64];
  const int length = std::snprintf(
      text, sizeof text, "T%02d:%02d:%02d", static_cast<int>(clock.hours().count()),
      static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
  if (fraction != 0)
    std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length), ".%03d", fraction);
  return text;
}

std::string offsetText(minutes offset) {
  if (offset == minutes(0)) return "Z";
  const int count = static_cast<int>(std::chrono::abs(offset).count());
  char text[32];
  std::snprintf(text, sizeof text, "%c%02d:%02d", offset < minutes(0) ? '-' : '+', count / 60,
                count % 60);
  return text;
}

}  // namespace

std::optional<DateTime> DateTimeFormat::fromString(std::string_view text) const {
  if (m_form != isoDate && m_form != isoDateTime) return std::nullopt;
  Parts parts(text);
  DateTime result;
  result.date = takeDate(parts);
  if (m_form == isoDateTime) {
    parts.expect('T');
    const auto time = takeTime(parts);
    if (!time) return std::nullopt;
    result.timeOfDay = *time;
    result.utcOffset = takeOffset(parts);
    if (result.utcOffset && std::chrono::abs(*result.utcOffset) >= hours(24)) return std::nullopt;
  }
  return parts.atEnd() && result.date.ok() ? std::optional(result) : std::nullopt;
}

std::string DateTimeFormat::toString(const DateTime& value) const {
  const int year = static_cast<int>(value.date.year());
  const bool writable = value.date.ok() && year >= 0 && year <= 9999 &&
                        value.timeOfDay >= milliseconds(0) && value.timeOfDay < wholeDay;
  if (!writable || (m_form != isoDate && m_form != isoDateTime)) return {};
  std::string text = dateText(value.date);
  if (m_form == isoDate) return text;
  text += timeText(value.timeOfDay);
  if (value.utcOffset) text += offsetText(*value.utcOffset);
  return text;
}

}  // namespace qor
