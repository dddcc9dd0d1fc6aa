#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// Lives while an entity is destroyed. Entities own what they name, so the end of one may be the
/// end of a chain of a million; from a certain depth on, what the entity names is parked and
/// released when the outermost destruction is done, so that no chain exhausts the stack.
class QOR_API EntityRelease {
 public:
  explicit EntityRelease(FcBase& entity);
  EntityRelease(const EntityRelease&) = delete;
  EntityRelease& operator=(const EntityRelease&) = delete;
  ~EntityRelease();
};

/// The standard allocation, with an `EntityRelease` around each destruction.
template <class T>
class EntityAllocator {
 public:
  using value_type = T;

  EntityAllocator() = default;
  template <class U>
  EntityAllocator(const EntityAllocator<U>&) {}  // NOLINT(google-explicit-constructor): rebinding

  T* allocate(std::size_t count) { return std::allocator<T>().allocate(count); }
  void deallocate(T* place, std::size_t count) { std::allocator<T>().deallocate(place, count); }
  template <class U>
  void destroy(U* entity) {
    const EntityRelease release(*entity);
    entity->~U();
  }

  friend bool operator==(const EntityAllocator&, const EntityAllocator&) { return true; }
};

/// `std::make_shared<T>()` for entities that may end up in long chains: what the factory and a
/// model's `create` use.
template <class T>
std::shared_ptr<T> makeEntity() {
  return std::allocate_shared<T>(EntityAllocator<T>());
}

}  // namespace qor::fc
