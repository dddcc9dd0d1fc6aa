#include "Qor/String/Utf8.h"

#include <cstdint>
#include <cstring>

namespace qor {

namespace {

constexpr char32_t lastCodePoint = 0x10FFFF;

constexpr bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// Bytes that `codePoint` takes in its shortest, the only valid, form.
constexpr std::size_t encodedLength(char32_t codePoint) {
  if (codePoint < 0x80) return 1;
  if (codePoint < 0x800) return 2;
  return codePoint < 0x10000 ? 3 : 4;
}

/// Length that a lead byte promises; 0 for a byte that can't lead.
constexpr std::size_t promisedLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if ((lead & 0xE0) == 0xC0) return 2;
  if ((lead & 0xF0) == 0xE0) return 3;
  return (lead & 0xF8) == 0xF0 ? 4 : 0;
}

std::size_t asciiPrefix(std::string_view text) {
  std::size_t length = 0;
  for (; length + 8 <= text.size(); length += 8) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, text.data() + length, 8);
    if (bytes & 0x8080808080808080ULL) break;
  }
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) ++length;
  return length;
}

}  // namespace

std::optional<Utf8CodePoint> firstCodePoint(std::string_view text) {
  if (text.empty()) return std::nullopt;
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = promisedLength(lead);
  if (length == 0 || length > text.size()) return std::nullopt;
  if (length == 1) return Utf8CodePoint{lead, 1};

  char32_t value = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    value = value << 6 | (byte & 0x3FU);
  }
  if (value > lastCodePoint || isSurrogate(value) || encodedLength(value) != length) {
    return std::nullopt;
  }
  return Utf8CodePoint{value, length};
}

bool isValidUtf8(std::string_view text) {
  for (text.remove_prefix(asciiPrefix(text)); !text.empty();
       text.remove_prefix(asciiPrefix(text))) {
    const auto codePoint = firstCodePoint(text);
    if (!codePoint) return false;
    text.remove_prefix(codePoint->length);
  }
  return true;
}

bool appendUtf8(std::string& text, char32_t codePoint) {
  if (codePoint > lastCodePoint || isSurrogate(codePoint)) return false;
  const std::size_t length = encodedLength(codePoint);
  if (length == 1) {
    text.push_back(static_cast<char>(codePoint));
    return true;
  }
  const unsigned leadMark = 0xFFU << (8 - length) & 0xFFU;
  text.push_back(static_cast<char>(leadMark | codePoint >> 6 * (length - 1)));
  for (std::size_t i = length - 1; i-- > 0;) {
    text.push_back(static_cast<char>(0x80U | (codePoint >> 6 * i & 0x3FU)));
  }
  return true;
}

}  // namespace qor
