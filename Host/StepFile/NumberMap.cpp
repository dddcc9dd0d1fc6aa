#include "Host/StepFile/NumberMap.h"

#include <bit>
#include <utility>

namespace qor::host::step {

namespace {

// At most two thirds of the slots are taken: runs stay short.
std::size_t slotsFor(std::size_t count) { return std::bit_ceil(count + count / 2 + 2); }

// Addresses and numbers have their information in the low bits; this spreads it (finalizer of the
// splitmix64 generator).
std::uint64_t mix(std::uint64_t key) {
  key = (key ^ (key >> 30)) * 0xBF58476D1CE4E5B9ULL;
  key = (key ^ (key >> 27)) * 0x94D049BB133111EBULL;
  return key ^ (key >> 31);
}

}  // namespace

std::size_t NumberMap::slotOf(std::uint64_t key) const {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t slot = mix(key) & mask;
  while (m_slots[slot].value != none && m_slots[slot].key != key) slot = (slot + 1) & mask;
  return slot;
}

void NumberMap::reserve(std::size_t count) {
  if (slotsFor(count) <= m_slots.size()) return;
  const std::vector<Slot> old = std::exchange(m_slots, std::vector<Slot>(slotsFor(count)));
  for (const Slot& entry : old) {
    if (entry.value != none) m_slots[slotOf(entry.key)] = entry;
  }
}

bool NumberMap::insert(std::uint64_t key, std::uint32_t value) {
  reserve(m_size + 1);
  Slot& slot = m_slots[slotOf(key)];
  if (slot.value != none) return false;
  slot = {key, value};
  ++m_size;
  return true;
}

std::uint32_t NumberMap::find(std::uint64_t key) const {
  return m_slots.empty() ? none : m_slots[slotOf(key)].value;
}

}  // namespace qor::host::step
