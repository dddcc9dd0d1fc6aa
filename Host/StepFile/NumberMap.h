#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace qor::host::step {

/// A map from 64-bit keys to 32-bit numbers below `none`, in one array: no allocation per entry,
/// one cache miss per look-up.
class NumberMap {
 public:
  static constexpr std::uint32_t none = 0xFFFFFFFF;

  /// Room for `count` keys in all; entries that are there stay.
  void reserve(std::size_t count);
  /// False, and no change, when the key is there already.
  bool insert(std::uint64_t key, std::uint32_t value);
  /// `none` when the key isn't there.
  std::uint32_t find(std::uint64_t key) const;
  std::size_t size() const { return m_size; }

 private:
  struct Slot {
    std::uint64_t key;
    std::uint32_t value = none;
  };

  /// The slot of the key, or the free one where it belongs.
  std::size_t slotOf(std::uint64_t key) const;

  std::vector<Slot> m_slots;  // a power of two
  std::size_t m_size = 0;
};

}  // namespace qor::host::step
