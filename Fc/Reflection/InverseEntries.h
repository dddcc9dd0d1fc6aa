#pragma once

#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// The holders of a forward attribute that point at one entity: weak pointers ordered by owner, no
/// owner twice.
///
/// One word while empty, since most entities have no entry in most of their inverse attributes. Up
/// to `flatLimit` entries stand in one sorted array, more in a balanced tree, so that an insertion
/// stays logarithmic on an entity that a million others name. An entry whose entity has died stays
/// until it is erased, or until a tree has doubled, when the dead are swept out; readers pass over
/// it.
class QOR_API InverseEntries {
 public:
  static constexpr std::size_t flatLimit = 32;

  InverseEntries() noexcept = default;
  InverseEntries(const InverseEntries&) = delete;
  InverseEntries& operator=(const InverseEntries&) = delete;
  ~InverseEntries() { clear(); }

  bool empty() const { return m_storage == 0; }
  /// Counts dead entries too.
  std::size_t size() const;
  /// False, and no effect, when the owner is there already.
  bool insert(const std::weak_ptr<FcBase>& holder);
  /// Makes `holder` the only entry.
  void replace(const std::weak_ptr<FcBase>& holder);
  /// No effect when the owner isn't there. Works for a dead entry.
  void erase(const std::weak_ptr<FcBase>& holder);
  void clear();

  /// Calls back with a `std::shared_ptr<FcBase>` for each entry that is alive, in the order of
  /// owners.
  template <class Callback>
  void forEach(Callback&& callback) const {
    forEachUntil([&callback](std::shared_ptr<FcBase>&& entry) {
      callback(std::move(entry));
      return false;
    });
  }
  /// The same until the callback answers true: what lies behind isn't locked.
  template <class Callback>
  void forEachUntil(Callback&& callback) const {
    visitLocked([&callback](std::shared_ptr<FcBase>&& entry) {
      return entry && callback(std::move(entry));
    });
  }
  /// The same with a null pointer for each entry that has died.
  template <class Callback>
  void forEachEntry(Callback&& callback) const {
    visitLocked([&callback](std::shared_ptr<FcBase>&& entry) {
      callback(std::move(entry));
      return false;
    });
  }

 private:
  struct Flat;
  struct Tree;
  static constexpr std::uintptr_t treeTag = 1;

  bool isTree() const { return (m_storage & treeTag) != 0; }
  Flat* flat() const { return reinterpret_cast<Flat*>(m_storage); }
  Tree* tree() const { return reinterpret_cast<Tree*>(m_storage & ~treeTag); }
  /// Until the callback answers true.
  template <class Callback>
  void visitLocked(Callback&& callback) const {
    visit(&callback, [](void* object, const std::weak_ptr<FcBase>& entry) -> bool {
      return (*static_cast<std::remove_reference_t<Callback>*>(object))(entry.lock());
    });
  }
  void visit(void* object, bool (*callback)(void*, const std::weak_ptr<FcBase>&)) const;
  void growTo(std::uint32_t capacity);
  void turnIntoTree();

  /// A pointer to `Flat`, or to `Tree` with `treeTag`; 0 while empty.
  std::uintptr_t m_storage = 0;
};

}  // namespace qor::fc
