#include "Host/StepFile/TextCodec.h"

#include <array>
#include <cstdint>
#include <optional>

#include "Host/StepFile/CodePages.h"
#include "Qor/String/Utf8.h"

namespace qor::host::step {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t firstBeyondX2 = 0x10000;

bool isHighSurrogate(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool isLowSurrogate(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

std::optional<unsigned> hexDigit(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
  return std::nullopt;
}

/// The value of the first `count` characters; empty when there are fewer or one is no hexadecimal
/// digit.
std::optional<char32_t> hexValue(std::string_view digits, std::size_t count) {
  if (digits.size() < count) return std::nullopt;
  char32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const auto digit = hexDigit(digits[i]);
    if (!digit) return std::nullopt;
    value = value << 4 | *digit;
  }
  return value;
}

class Decoder {
 public:
  Decoder(std::string_view content, std::string& out)
      : m_rest(content), m_out(out), m_utf8(isValidUtf8(content)) {
    m_defects.notUtf8 = !m_utf8;
    m_defects.hasNul = content.find('\0') != std::string_view::npos;
  }

  TextDefects run() {
    m_out.clear();
    m_out.reserve(m_rest.size());
    while (!m_rest.empty()) {
      const char c = m_rest.front();
      if (c == '\\')
        escape();
      else if (c == '\'')
        literal(c, m_rest.starts_with("''") ? 2 : 1);
      else if (static_cast<unsigned char>(c) < 0x80 || m_utf8)
        literal(c, 1);
      else
        character(static_cast<unsigned char>(c), 1);
    }
    return m_defects;
  }

 private:
  void literal(char c, std::size_t length) {
    m_out.push_back(c);
    m_rest.remove_prefix(length);
  }

  void character(char32_t c, std::size_t length) {
    put(c);
    m_rest.remove_prefix(length);
  }

  void put(char32_t c) {
    if (appendUtf8(m_out, c)) return;
    m_defects.noCharacter = true;
    appendUtf8(m_out, replacementCharacter);
  }

  void escape() {
    if (m_rest.starts_with("\\\\")) return literal('\\', 2);
    if (m_rest.starts_with("\\N\\")) return literal('\n', 3);
    if (m_rest.starts_with("\\F\\")) return literal('\f', 3);
    if (m_rest.starts_with("\\S\\") && pagedCharacter()) return;
    if (m_rest.starts_with("\\P") && page()) return;
    if (m_rest.starts_with("\\X\\") && byte()) return;
    if (m_rest.starts_with("\\X2\\") && characters(4)) return;
    if (m_rest.starts_with("\\X4\\") && characters(8)) return;
    m_defects.badEscape = true;
    literal('\\', 1);
  }

  bool pagedCharacter() {
    if (m_rest.size() < 4 || static_cast<unsigned char>(m_rest[3]) >= 0x80) return false;
    const bool doubled = m_rest.substr(3).starts_with("''");
    const char32_t c = codePageCharacter(m_page, m_rest[3]);
    character(c != 0 ? c : 0xFFFFFFFF, doubled ? 5 : 4);
    return true;
  }

  bool page() {
    if (m_rest.size() < 4 || m_rest[2] < 'A' || m_rest[2] > 'I' || m_rest[3] != '\\') return false;
    m_page = m_rest[2];
    m_rest.remove_prefix(4);
    return true;
  }

  bool byte() {
    const auto value = hexValue(m_rest.substr(3), 2);
    if (value) character(*value, 5);
    return value.has_value();
  }

  // \X2\ and \X4\: characters of `width` digits each up to \X0\.
  bool characters(std::size_t width) {
    constexpr std::string_view terminator = "\\X0\\";
    const std::string_view body = m_rest.substr(4);
    std::size_t length = 0;
    while (length < body.size() && hexDigit(body[length])) ++length;
    if (length % width != 0 || !body.substr(length).starts_with(terminator)) return false;
    for (std::size_t i = 0; i < length; i += width) {
      char32_t c = *hexValue(body.substr(i), width);
      // Some writers give UTF-16 here: two surrogates for one character.
      if (isHighSurrogate(c) && i + width < length) {
        const char32_t low = *hexValue(body.substr(i + width), width);
        if (isLowSurrogate(low)) {
          c = firstBeyondX2 + ((c - 0xD800) << 10) + (low - 0xDC00);
          i += width;
        }
      }
      put(c);
    }
    m_rest.remove_prefix(4 + length + terminator.size());
    return true;
  }

  std::string_view m_rest;
  std::string& m_out;
  bool m_utf8;
  char m_page = 'A';
  TextDefects m_defects;
};

void appendHex(std::string& out, char32_t value, int digits) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  for (int i = digits - 1; i >= 0; --i) out.push_back(hex[value >> (4 * i) & 0xF]);
}

/// How a character is escaped: the digits of its escape, 0 for none.
int escapeDigits(char32_t c) {
  if (c >= firstBeyondX2) return 8;
  if (c >= 0x80) return 4;
  return c < 0x20 || c == 0x7F ? 2 : 0;
}

Utf8CodePoint firstOrLatin1(std::string_view text) {
  return firstCodePoint(text).value_or(Utf8CodePoint{static_cast<unsigned char>(text.front()), 1});
}

/// Appends the characters in front that share one kind of escape, as one escape, and removes them
/// from `text`.
void appendEscape(std::string& out, std::string_view& text, int digits) {
  out += digits == 4 ? "\\X2\\" : "\\X4\\";
  while (!text.empty()) {
    const Utf8CodePoint c = firstOrLatin1(text);
    if (escapeDigits(c.value) != digits) break;
    appendHex(out, c.value, digits);
    text.remove_prefix(c.length);
  }
  out += "\\X0\\";
}

}  // namespace

TextDefects decodeText(std::string_view content, std::string& out) {
  return Decoder(content, out).run();
}

void appendEncodedText(std::string& out, std::string_view text) {
  out.push_back('\'');
  while (!text.empty()) {
    const char c = text.front();
    const int digits = escapeDigits(firstOrLatin1(text).value);
    if (digits > 2) {
      appendEscape(out, text, digits);
      continue;
    }
    if (digits == 2) {
      out += "\\X\\";
      appendHex(out, static_cast<unsigned char>(c), 2);
    } else {
      if (c == '\'' || c == '\\') out.push_back(c);
      out.push_back(c);
    }
    text.remove_prefix(1);
  }
  out.push_back('\'');
}

}  // namespace qor::host::step
