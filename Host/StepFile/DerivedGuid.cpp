#include "Host/StepFile/DerivedGuid.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace qor::host::step {

namespace {

// FNV-1a, mixed by the finalizer of splitmix64 so that texts that differ in their last character
// differ in all bits.
std::uint64_t hashOfText(std::string_view text, std::uint64_t start) {
  std::uint64_t hash = 0xCBF29CE484222325ULL ^ start;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
  hash = (hash ^ (hash >> 30)) * 0xBF58476D1CE4E5B9ULL;
  hash = (hash ^ (hash >> 27)) * 0x94D049BB133111EBULL;
  return hash ^ (hash >> 31);
}

}  // namespace

Guid guidOfText(std::string_view text) {
  Guid guid;
  if (guid.boSet(text) && !guid.isNull()) return guid;
  const std::uint64_t high = hashOfText(text, 0);
  const std::uint64_t low = hashOfText(text, 0x9E3779B97F4A7C15ULL);
  std::array<std::uint8_t, 8> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i)
    bytes[i] = static_cast<std::uint8_t>(low >> (8 * i));
  bytes[0] = static_cast<std::uint8_t>((bytes[0] & 0x3F) | 0x80);
  return {static_cast<std::uint32_t>(high >> 32), static_cast<std::uint16_t>(high >> 16),
          static_cast<std::uint16_t>((high & 0x0FFF) | 0x8000), bytes};
}

}  // namespace qor::host::step
