#pragma once

#include <cstddef>
#include <memory>
#include <new>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// Makes an entity by `construct`, which gets the place for `size` bytes, a multiple of 8 up to
/// `largestEntity`: one allocation for the entity and its counts. What `construct` throws passes
/// through.
QOR_API std::shared_ptr<FcBase> makeEntityOfSize(std::size_t size, void (*construct)(void* place));
inline constexpr std::size_t largestEntity = 768;

/// An entity of class `T` in the place given.
template <class T>
void constructEntity(void* place) {
  static_assert(sizeof(T) <= largestEntity && sizeof(T) % 8 == 0 && alignof(T) <= 16);
  new (place) T();
}

/// `std::make_shared<T>()` for entities that may end up in long chains: what the factory
/// and a model's `create` use. Entities own what they name, so the end of one may be the end of a
/// chain of a million; those that are made here end without recursion beyond a fixed depth.
///
/// Compiles in a fraction of the time, since the classes of one size share their code.
template <class T>
std::shared_ptr<T> makeEntity() {
  return std::static_pointer_cast<T>(makeEntityOfSize(sizeof(T), constructEntity<T>));
}

}  // namespace qor::fc
