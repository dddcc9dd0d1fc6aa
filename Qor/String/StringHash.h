#pragma once

#include <cstdint>
#include <string_view>

namespace qor {

/// A name together with its hash: the key of look-ups that go by the hash alone.
///
/// The hash is 32-bit FNV-1a with each byte sign-extended before the XOR, so bytes above 0x7F hash
/// otherwise than in the common form. It is that of the name as it stands: "IfcWall" and "IFCWALL"
/// differ.
struct StringHash {
  const char* text = nullptr;  ///< not owned, not necessarily terminated by a zero
  std::uint64_t length = 0;
  std::uint32_t hash = 0;

  /// `name`'s characters must outlive the result.
  static constexpr StringHash of(std::string_view name) {
    std::uint32_t hash = 0x811C9DC5U;
    for (const char c : name) {
      hash ^= static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<signed char>(c)));
      hash *= 16777619U;
    }
    return {name.data(), name.size(), hash};
  }

  constexpr std::string_view view() const { return {text, static_cast<std::size_t>(length)}; }
};

}  // namespace qor
