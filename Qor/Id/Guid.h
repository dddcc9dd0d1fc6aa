#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor {

/// A globally unique identifier of 16 bytes: one 32-bit field, two 16-bit fields, eight bytes. The
/// default is the null guid, all zero.
///
/// Order and equality go by these fields, each unsigned.
///
/// There are two text forms of the same 128 bits. That of IFC files has 22 characters of the
/// alphabet 0-9 A-Z a-z _ $, six bits each from the most significant end; the first carries two
/// bits and is thus '0' to '3'. The other has 36 characters, hexadecimal with hyphens:
/// "01234567-89ab-cdef-0123-456789abcdef".
class QOR_API Guid {
 public:
  constexpr Guid() = default;
  constexpr Guid(std::uint32_t data1, std::uint16_t data2, std::uint16_t data3,
                 const std::array<std::uint8_t, 8>& data4)
      : m_data1(data1), m_data2(data2), m_data3(data3), m_data4(data4) {}

  /// A random guid (version 4), different on each call and on each thread. Some fifteen
  /// nanoseconds; the first call on a thread also takes a seed from the operating system.
  static Guid generate();

  constexpr bool isNull() const { return *this == Guid(); }

  /// The 22-character form, or with hyphens the 36-character one in lower case.
  std::string toString(bool withHyphens) const;

  /// The 22-character form without a terminating zero, for writers that own their buffer.
  void toCharacters(char out[22]) const;

  /// Takes either text form, with or without a pair of braces around it, hexadecimal digits in any
  /// case. Any other text gives false and leaves the guid as it was: nothing is trimmed, and 22
  /// characters that begin above '3' don't fit into 128 bits. No allocation.
  bool boSet(std::string_view text);

  /// Well mixed in all its bits; the same in every process.
  std::size_t hash() const;

  friend constexpr bool operator==(const Guid&, const Guid&) = default;
  friend constexpr std::strong_ordering operator<=>(const Guid&, const Guid&) = default;

 private:
  std::uint32_t m_data1 = 0;
  std::uint16_t m_data2 = 0;
  std::uint16_t m_data3 = 0;
  std::array<std::uint8_t, 8> m_data4{};
};

}  // namespace qor

template <>
struct std::hash<qor::Guid> {
  std::size_t operator()(const qor::Guid& guid) const { return guid.hash(); }
};
