#pragma once

#include <cstdint>
#include <string>

namespace qor::host::step {

enum class NumberResult : std::uint8_t {
  ok,
  notANumber,
  outOfRange,  ///< larger than a double or a 64-bit integer holds
};

/// Reads a number that begins at `at`, and moves `at` behind it. Some character that belongs to no
/// number must follow in the same text: there is no other end. On failure `out` stays, and `at`
/// moves all the same where the text had the form of a number.
///
/// The result is the double next to the decimal number. One too small for a double is zero, with
/// its sign.
NumberResult readReal(const char*& at, double& out);
NumberResult readInteger(const char*& at, std::int64_t& out);

/// Reads the digits from `at` on, up to `end` at most, and moves `at` behind them. A number too
/// large for 64 bits becomes the largest one.
std::uint64_t readInstanceNumber(const char*& at, const char* end);

/// Appends the shortest form that reads back as the same bits, with the point that STEP asks for:
/// "2.5", "1.", "1.E-05". `value` must be finite.
void appendReal(std::string& out, double value);
void appendInteger(std::string& out, std::int64_t value);
void appendUnsigned(std::string& out, std::uint64_t value);

}  // namespace qor::host::step
