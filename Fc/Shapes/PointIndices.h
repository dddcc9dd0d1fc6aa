#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qor::fc::resource::geometry {
class FcCartesianPoint;
}

namespace qor::fc::resource::topology {

/// Which index each point object of a shell has in the shell's coordinates. Points are told apart
/// by identity: two equal point objects have two indices.
///
/// A hash table with open addressing, at most half full: one allocation for a shell whose number of
/// points was told well.
class PointIndices {
 public:
  explicit PointIndices(std::size_t expectedPoints = 16) : m_slots(slotsFor(expectedPoints)) {}

  /// The index of the point; `next`, which the table then keeps, for one that is met first.
  std::uint32_t findOrInsert(const geometry::FcCartesianPoint* point, std::uint32_t next) {
    if (2 * (m_count + 1) > m_slots.size()) grow();
    Slot& slot = m_slots[placeOf(point)];
    if (!slot.point) {
      slot = {point, next};
      ++m_count;
    }
    return slot.index;
  }

 private:
  struct Slot {
    const geometry::FcCartesianPoint* point = nullptr;
    std::uint32_t index = 0;
  };

  static std::size_t slotsFor(std::size_t points) {
    return std::bit_ceil(2 * points < 16 ? std::size_t{16} : 2 * points);
  }
  /// Where the point stands, or the empty slot where it belongs.
  std::size_t placeOf(const geometry::FcCartesianPoint* point) const {
    const std::size_t mask = m_slots.size() - 1;
    // Fibonacci hashing: the low bits of an address are always 0.
    std::uint64_t hash = reinterpret_cast<std::uintptr_t>(point) * 0x9E3779B97F4A7C15u;
    std::size_t place = static_cast<std::size_t>(hash >> 32) & mask;
    while (m_slots[place].point && m_slots[place].point != point) place = (place + 1) & mask;
    return place;
  }
  void grow() {
    std::vector<Slot> old(2 * m_slots.size());
    old.swap(m_slots);
    for (const Slot& slot : old)
      if (slot.point) m_slots[placeOf(slot.point)] = slot;
  }

  std::vector<Slot> m_slots;
  std::size_t m_count = 0;
};

}  // namespace qor::fc::resource::topology
