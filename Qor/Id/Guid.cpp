#include "Qor/Id/Guid.h"

#include <optional>
#include <random>
#include <type_traits>

namespace qor {

static_assert(sizeof(Guid) == 16 && std::is_trivially_copyable_v<Guid>);

namespace {

constexpr std::string_view base64Alphabet =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
constexpr std::string_view hexAlphabet = "0123456789abcdef";
constexpr std::uint8_t noDigit = 0xFF;

using DigitTable = std::array<std::uint8_t, 256>;

constexpr DigitTable digitsOf(std::string_view alphabet) {
  DigitTable table{};
  table.fill(noDigit);
  for (std::size_t i = 0; i < alphabet.size(); ++i) {
    table[static_cast<unsigned char>(alphabet[i])] = static_cast<std::uint8_t>(i);
  }
  return table;
}

constexpr DigitTable base64Digits = digitsOf(base64Alphabet);
constexpr DigitTable hexDigits = [] {
  DigitTable table = digitsOf(hexAlphabet);
  for (std::size_t i = 0; i < 6; ++i) table['A' + i] = static_cast<std::uint8_t>(10 + i);
  return table;
}();

constexpr std::size_t base64Length = 22;
constexpr std::size_t hexLength = 36;

constexpr bool isHyphenPlace(std::size_t i) { return i == 8 || i == 13 || i == 18 || i == 23; }

/// The guid as one unsigned number of 128 bits, in the order in which both texts write it.
struct Bits128 {
  std::uint64_t high = 0;
  std::uint64_t low = 0;

  void shiftIn(std::uint8_t digit, int bits) {
    high = high << bits | low >> (64 - bits);
    low = low << bits | digit;
  }
  std::uint8_t shiftOut(int bits) {
    const auto digit = static_cast<std::uint8_t>(low & ((1U << bits) - 1U));
    low = low >> bits | high << (64 - bits);
    high >>= bits;
    return digit;
  }
};

Bits128 toBits(std::uint32_t data1, std::uint16_t data2, std::uint16_t data3,
               const std::array<std::uint8_t, 8>& data4) {
  Bits128 bits;
  bits.high = std::uint64_t{data1} << 32 | std::uint64_t{data2} << 16 | data3;
  for (const std::uint8_t byte : data4) bits.low = bits.low << 8 | byte;
  return bits;
}

Guid fromBits(const Bits128& bits) {
  std::array<std::uint8_t, 8> data4{};
  for (std::size_t i = 0; i < 8; ++i) {
    data4[i] = static_cast<std::uint8_t>(bits.low >> (56 - 8 * i));
  }
  return {static_cast<std::uint32_t>(bits.high >> 32), static_cast<std::uint16_t>(bits.high >> 16),
          static_cast<std::uint16_t>(bits.high), data4};
}

std::optional<Bits128> parseBase64(std::string_view text) {
  if (base64Digits[static_cast<unsigned char>(text.front())] > 3) return std::nullopt;
  Bits128 bits;
  for (const char c : text) {
    const std::uint8_t digit = base64Digits[static_cast<unsigned char>(c)];
    if (digit == noDigit) return std::nullopt;
    bits.shiftIn(digit, 6);
  }
  return bits;
}

std::optional<Bits128> parseHex(std::string_view text) {
  Bits128 bits;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isHyphenPlace(i)) {
      if (text[i] != '-') return std::nullopt;
      continue;
    }
    const std::uint8_t digit = hexDigits[static_cast<unsigned char>(text[i])];
    if (digit == noDigit) return std::nullopt;
    bits.shiftIn(digit, 4);
  }
  return bits;
}

std::optional<Bits128> parse(std::string_view text) {
  if (text.size() > 2 && text.front() == '{' && text.back() == '}') {
    text = text.substr(1, text.size() - 2);
  }
  if (text.size() == base64Length) return parseBase64(text);
  if (text.size() == hexLength) return parseHex(text);
  return std::nullopt;
}

std::mt19937_64 seededEngine() {
  std::random_device device;
  std::seed_seq seed{device(), device(), device(), device(),
                     device(), device(), device(), device()};
  return std::mt19937_64(seed);
}

}  // namespace

Guid Guid::generate() {
  thread_local std::mt19937_64 engine = seededEngine();
  Bits128 bits{engine(), engine()};
  bits.high = (bits.high & ~0xF000ULL) | 0x4000ULL;      // version 4: random
  bits.low = (bits.low & ~(3ULL << 62)) | (2ULL << 62);  // variant of RFC 4122
  return fromBits(bits);
}

std::string Guid::toString(bool withHyphens) const {
  if (!withHyphens) {
    std::string text(base64Length, '\0');
    toCharacters(text.data());
    return text;
  }
  std::string text(hexLength, '-');
  Bits128 bits = toBits(m_data1, m_data2, m_data3, m_data4);
  for (std::size_t i = hexLength; i-- > 0;) {
    if (!isHyphenPlace(i)) text[i] = hexAlphabet[bits.shiftOut(4)];
  }
  return text;
}

void Guid::toCharacters(char out[22]) const {
  Bits128 bits = toBits(m_data1, m_data2, m_data3, m_data4);
  for (std::size_t i = base64Length; i-- > 0;) out[i] = base64Alphabet[bits.shiftOut(6)];
}

bool Guid::boSet(std::string_view text) {
  const std::optional<Bits128> bits = parse(text);
  if (!bits) return false;
  *this = fromBits(*bits);
  return true;
}

// Guids of one exporter often differ in a few bits only: multiply and fold until every bit has
// reached every other.
std::size_t Guid::hash() const {
  const Bits128 bits = toBits(m_data1, m_data2, m_data3, m_data4);
  std::uint64_t mixed = bits.high * 0x9E3779B97F4A7C15ULL ^ bits.low;
  mixed = (mixed ^ mixed >> 33) * 0xFF51AFD7ED558CCDULL;
  mixed = (mixed ^ mixed >> 33) * 0xC4CEB9FE1A85EC53ULL;
  return static_cast<std::size_t>(mixed ^ mixed >> 33);
}

}  // namespace qor
