#include "Host/StepFile/Utf16.h"

#include <cstddef>

#include "Qor/String/Utf8.h"

namespace qor::host::step {

namespace {

constexpr char32_t replacement = 0xFFFD;

/// The characters of a text in UTF-16, one after the other.
class Utf16Text {
 public:
  Utf16Text(std::string_view bytes, bool isLittleEndian)
      : m_bytes(bytes), m_low(isLittleEndian ? 0 : 1) {}

  bool atEnd() const { return m_at + 1 >= m_bytes.size(); }

  char32_t next() {
    const char32_t unit = takeUnit();
    if (unit < 0xD800 || unit > 0xDFFF) return unit;
    const char32_t low = unit < 0xDC00 && !atEnd() ? unitAt(m_at) : 0;
    if (low < 0xDC00 || low > 0xDFFF) return replacement;
    m_at += 2;
    return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
  }

 private:
  char32_t unitAt(std::size_t at) const {
    const auto byte = [this](std::size_t i) { return static_cast<unsigned char>(m_bytes[i]); };
    return static_cast<char32_t>(byte(at + 1 - m_low) << 8 | byte(at + m_low));
  }
  char32_t takeUnit() {
    const char32_t unit = unitAt(m_at);
    m_at += 2;
    return unit;
  }

  std::string_view m_bytes;
  std::size_t m_low;
  std::size_t m_at = 0;
};

}  // namespace

std::optional<std::string> utf8OfUtf16(std::string_view bytes) {
  constexpr std::string_view littleStart("I\0S\0", 4);
  constexpr std::string_view bigStart("\0I\0S", 4);
  const bool hasMark = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
  if (!hasMark && !bytes.starts_with(littleStart) && !bytes.starts_with(bigStart))
    return std::nullopt;
  const bool isLittleEndian = bytes.starts_with('\xFF') || bytes.starts_with('I');
  Utf16Text text(bytes.substr(hasMark ? 2 : 0), isLittleEndian);
  std::string utf8;
  utf8.reserve(bytes.size() / 2);
  while (!text.atEnd()) appendUtf8(utf8, text.next());
  return utf8;
}

}  // namespace qor::host::step
