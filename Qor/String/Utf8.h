#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor {

/// A code point and the number of bytes (1 to 4) that it takes in UTF-8.
struct Utf8CodePoint {
  char32_t value = 0;
  std::size_t length = 0;

  friend bool operator==(const Utf8CodePoint&, const Utf8CodePoint&) = default;
};

/// The first code point of `text`. Empty for an empty text and for bytes that aren't well-formed
/// UTF-8: a stray or missing continuation byte, an overlong form, a surrogate, a value above
/// U+10FFFF.
QOR_API std::optional<Utf8CodePoint> firstCodePoint(std::string_view text);

/// Whether `text` is well-formed UTF-8 throughout. Runs of ASCII take eight bytes a step.
QOR_API bool isValidUtf8(std::string_view text);

/// Appends `codePoint` in UTF-8. False, and nothing appended, for a surrogate and for values above
/// U+10FFFF.
QOR_API bool appendUtf8(std::string& text, char32_t codePoint);

/// One of the control characters, of ASCII or of Latin-1.
constexpr bool isControl(char32_t codePoint) {
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

/// `text` as well-formed UTF-8, with U+FFFD for each byte that belongs to no code point, and with
/// what `replacement` appends for the code points that it answers true for:
/// `bool replacement(std::string& out, char32_t codePoint)`.
template <class Replacement>
std::string repairedUtf8(std::string_view text, const Replacement& replacement) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const std::optional<Utf8CodePoint> next = firstCodePoint(text);
    const std::size_t length = next ? next->length : 1;
    if (!next)
      appendUtf8(out, 0xFFFD);
    else if (!replacement(out, next->value))
      out += text.substr(0, length);
    text.remove_prefix(length);
  }
  return out;
}

}  // namespace qor
