#include "Host/StepFile/Numbers.h"

#include <array>
#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

#include "Host/StepFile/Scanner.h"

namespace qor::host::step {

namespace {

// Up to this many digits, an integer is a double without rounding, and so is a power of ten up to
// 10^22: their product or quotient is then rounded once, to the right double.
constexpr std::uint64_t exactMantissa = std::uint64_t{1} << 53;
constexpr std::int64_t exactPower = 22;
constexpr std::array<double, exactPower + 1> powersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
// 19 digits always fit into 64 bits.
constexpr std::int64_t safeDigits = 19;
// Beyond, an exponent says no more than that the number is out of range; below the limit of an int
// with room to spare.
constexpr std::int64_t hugeExponent = 100000;

/// A decimal number taken apart: mantissa * 10^exponent.
struct Decimal {
  bool negative = false;
  std::int64_t digits = 0;  ///< of the mantissa, without leading zeros
  std::uint64_t mantissa = 0;
  std::int64_t exponent = 0;
};

void takeDigit(Decimal& number, char c) {
  if (number.digits > 0 || c != '0') ++number.digits;
  number.mantissa = number.mantissa * 10 + static_cast<std::uint64_t>(c - '0');
}

bool takeSign(const char*& at) {
  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  return negative;
}

// "E-05"; a lone E belongs to no number and stays.
std::int64_t takeExponent(const char*& at) {
  if (*at != 'E' && *at != 'e') return 0;
  const char* digit = at + 1;
  const bool negative = takeSign(digit);
  if (!isDigit(*digit)) return 0;
  std::int64_t exponent = 0;
  for (; isDigit(*digit); ++digit) {
    if (exponent < hugeExponent) exponent = exponent * 10 + (*digit - '0');
  }
  at = digit;
  return negative ? -exponent : exponent;
}

NumberResult readExactly(std::string_view text, const Decimal& number, double& out) {
  double value = 0;
  const std::from_chars_result result =
      std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (number.digits + number.exponent > 0) return NumberResult::outOfRange;
    value = number.negative ? -0.0 : 0.0;
  }
  out = value;
  return NumberResult::ok;
}

}  // namespace

NumberResult readReal(const char*& at, double& out) {
  Decimal number;
  const char* digit = at;
  number.negative = takeSign(digit);
  const char* start = digit;
  for (; isDigit(*digit); ++digit) takeDigit(number, *digit);
  bool hasDigits = digit != start;
  if (*digit == '.') {
    const char* fraction = ++digit;
    for (; isDigit(*digit); ++digit) takeDigit(number, *digit);
    number.exponent = fraction - digit;
    hasDigits = hasDigits || digit != fraction;
  }
  if (!hasDigits) return NumberResult::notANumber;
  const char* sign = *at == '+' ? at + 1 : at;
  number.exponent += takeExponent(digit);
  at = digit;

  const std::int64_t power = number.exponent;
  if (number.digits <= safeDigits && number.mantissa <= exactMantissa && power >= -exactPower &&
      power <= exactPower) {
    const double mantissa = static_cast<double>(number.mantissa);
    const double size = power < 0 ? mantissa / powersOfTen[static_cast<std::size_t>(-power)]
                                  : mantissa * powersOfTen[static_cast<std::size_t>(power)];
    out = number.negative ? -size : size;
    return NumberResult::ok;
  }
  return readExactly({sign, static_cast<std::size_t>(digit - sign)}, number, out);
}

NumberResult readInteger(const char*& at, std::int64_t& out) {
  const char* start = *at == '+' ? at + 1 : at;
  const char* end = start;
  if (*end == '-' && start == at) ++end;
  const char* digits = end;
  while (isDigit(*end)) ++end;
  if (end == digits) return NumberResult::notANumber;
  at = end;
  const std::from_chars_result result = std::from_chars(start, end, out);
  return result.ec == std::errc::result_out_of_range ? NumberResult::outOfRange : NumberResult::ok;
}

std::uint64_t readInstanceNumber(const char*& at, const char* end) {
  constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t number = 0;
  for (; at != end && isDigit(*at); ++at) {
    const auto digit = static_cast<std::uint64_t>(*at - '0');
    number = number > (largest - digit) / 10 ? largest : number * 10 + digit;
  }
  return number;
}

void appendReal(std::string& out, double value) {
  std::array<char, 32> buffer;
  const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t exponent = text.find('e');
  const std::string_view mantissa = text.substr(0, exponent);
  out += mantissa;
  if (mantissa.find('.') == std::string_view::npos) out.push_back('.');
  if (exponent == std::string_view::npos) return;
  out.push_back('E');
  out += text.substr(exponent + 1);
}

namespace {

template <class Integer>
void append(std::string& out, Integer value) {
  std::array<char, 24> buffer;
  out.append(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
}

}  // namespace

void appendInteger(std::string& out, std::int64_t value) { append(out, value); }

void appendUnsigned(std::string& out, std::uint64_t value) { append(out, value); }

}  // namespace qor::host::step
