#include "Qor/Unit/QppSettings.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qor::unit {

namespace {

constexpr double kRoundingError = 1e-12;
constexpr double kTooLargeForDecimals = 1e15;  // a double has 15 decimal digits for certain

std::string numberText(double number, std::chars_format format, int precision) {
  char buffer[40];  // sign, 15 digits before and behind the point
  const auto [end, error] =
      std::to_chars(buffer, buffer + sizeof buffer, number, format, precision);
  return {buffer, end};
}

void cutZeros(std::string& text) {
  if (text.find('.') == std::string::npos) return;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
}

std::string shownText(double number, int decimals, bool keepZeros) {
  if (std::isnan(number)) return "NaN";
  if (std::isinf(number)) return number < 0 ? "-∞" : "∞";
  if (std::abs(number) < kRoundingError) number = 0;  // -0 included
  if (std::abs(number) >= kTooLargeForDecimals)
    return numberText(number, std::chars_format::general, 15);
  std::string text = numberText(number, std::chars_format::fixed, decimals);
  const bool readsAsZero = text.find_first_of("123456789") == std::string::npos;
  if (readsAsZero && number != 0) return numberText(number, std::chars_format::general, 3);
  if (!keepZeros) cutZeros(text);
  return text;
}

}  // namespace

std::string QppSettings::writeToString(double number, bool withUnit) const {
  std::string text =
      shownText(unit.fromSi(number), std::clamp(decimals, 0, maxDecimals), keepZeros);
  if (!withUnit || unit.symbol.empty()) return text;
  if (unit.symbol != "°") text += ' ';
  return text + unit.symbol;
}

}  // namespace qor::unit
