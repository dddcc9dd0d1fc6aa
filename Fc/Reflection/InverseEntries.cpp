#include "Fc/Reflection/InverseEntries.h"

#include <algorithm>
#include <new>
#include <set>

namespace qor::fc {

using Entry = std::weak_ptr<FcBase>;

struct InverseEntries::Flat {
  std::uint32_t count;
  std::uint32_t capacity;

  Entry* begin() { return std::launder(reinterpret_cast<Entry*>(this + 1)); }
  Entry* end() { return begin() + count; }
  Entry* lowerBound(const Entry& holder) {
    return std::lower_bound(begin(), end(), holder, std::owner_less<Entry>());
  }
};

struct InverseEntries::Tree {
  std::set<Entry, std::owner_less<Entry>> entries;
  std::size_t sweepAt = 2 * flatLimit;

  bool insert(const Entry& holder) {
    if (!entries.insert(holder).second) return false;
    if (entries.size() >= sweepAt) {
      std::erase_if(entries, [](const Entry& entry) { return entry.expired(); });
      sweepAt = std::max(2 * entries.size(), 2 * flatLimit);
    }
    return true;
  }
};

std::size_t InverseEntries::size() const {
  if (empty()) return 0;
  return isTree() ? tree()->entries.size() : flat()->count;
}

bool InverseEntries::insert(const Entry& holder) {
  if (isTree()) return tree()->insert(holder);
  if (empty()) growTo(1);
  const Entry* place = flat()->lowerBound(holder);
  if (place != flat()->end() && !holder.owner_before(*place)) return false;
  const auto position = place - flat()->begin();
  if (flat()->count == flatLimit) {
    turnIntoTree();
    return tree()->insert(holder);
  }
  if (flat()->count == flat()->capacity) growTo(flat()->capacity * 2);
  new (flat()->end()) Entry(holder);
  ++flat()->count;
  std::rotate(flat()->begin() + position, flat()->end() - 1, flat()->end());
  return true;
}

void InverseEntries::replace(const Entry& holder) {
  if (!empty() && !isTree() && flat()->count == 1) {
    *flat()->begin() = holder;
    return;
  }
  clear();
  insert(holder);
}

void InverseEntries::erase(const Entry& holder) {
  if (empty()) return;
  if (isTree()) {
    tree()->entries.erase(holder);
    if (tree()->entries.empty()) clear();
    return;
  }
  Entry* place = flat()->lowerBound(holder);
  if (place == flat()->end() || holder.owner_before(*place)) return;
  std::move(place + 1, flat()->end(), place);
  std::destroy_at(flat()->end() - 1);
  if (--flat()->count == 0) clear();
}

void InverseEntries::clear() {
  if (empty()) return;
  if (isTree()) {
    delete tree();
  } else {
    std::destroy(flat()->begin(), flat()->end());
    ::operator delete(flat());
  }
  m_storage = 0;
}

void InverseEntries::visit(void* object, bool (*callback)(void*, const Entry&)) const {
  if (empty()) return;
  if (isTree()) {
    for (const Entry& entry : tree()->entries)
      if (callback(object, entry)) return;
  } else {
    for (const Entry& entry : *flat())
      if (callback(object, entry)) return;
  }
}

void InverseEntries::growTo(std::uint32_t capacity) {
  static_assert(sizeof(Flat) % alignof(Entry) == 0);
  auto* grown = new (::operator new(sizeof(Flat) + capacity * sizeof(Entry))) Flat{0, capacity};
  if (!empty()) {
    std::uninitialized_move(flat()->begin(), flat()->end(), grown->begin());
    grown->count = flat()->count;
    clear();
  }
  m_storage = reinterpret_cast<std::uintptr_t>(grown);
}

void InverseEntries::turnIntoTree() {
  auto* tree = new Tree{{flat()->begin(), flat()->end()}};
  clear();
  m_storage = reinterpret_cast<std::uintptr_t>(tree) | treeTag;
}

}  // namespace qor::fc
