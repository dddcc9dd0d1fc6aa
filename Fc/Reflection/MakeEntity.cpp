#include "Fc/Reflection/MakeEntity.h"

#include <array>
#include <cstdlib>
#include <type_traits>
#include <utility>
#include <vector>

#include "Fc/FcBase.h"

namespace qor::fc {

namespace {

// A level of destruction takes some 200 bytes of stack.
constexpr int depthLimit = 500;

class EntityRelease;

thread_local int depth = 0;
// Of this thread, null while no entity is destroyed. Not an object of the thread's own: entities in
// static variables end after those.
thread_local EntityRelease* outermost = nullptr;

// Lives while an entity is destroyed: from a certain depth on, what the entity names is parked and
// released when the outermost destruction is done.
class EntityRelease {
 public:
  explicit EntityRelease(FcBase& entity) {
    if (++depth == 1) outermost = this;
    if (depth > depthLimit)
      entity.classInfo().forEachAttribute(
          [&entity](const AttributeInfo& attribute) { outermost->park(attribute, entity); });
  }
  EntityRelease(const EntityRelease&) = delete;
  EntityRelease& operator=(const EntityRelease&) = delete;
  ~EntityRelease() {
    // The outermost one stays at depth 1 meanwhile, so that what is released here doesn't come to
    // this loop again.
    while (depth == 1 && !m_parked.empty()) {
      const std::shared_ptr<FcBase> released = std::move(m_parked.back());
      m_parked.pop_back();
    }
    if (--depth == 0) outermost = nullptr;
  }

 private:
  void park(const AttributeInfo& attribute, const FcBase& entity) {
    attribute.type->forEachEntity(attribute.of(entity), [this](FcBase& target) {
      m_parked.push_back(target.weak_from_this().lock());
    });
  }

  std::vector<std::shared_ptr<FcBase>> m_parked;
};

void destroy(FcBase& entity) {
  const EntityRelease release(entity);
  entity.~FcBase();
}

// Stands for all classes of one size where a `std::shared_ptr` is made, so that its code is made
// for each size instead of for each class. Never constructed itself: the allocator puts an entity
// into its place, whose `FcBase` is at the front as it is here.
template <std::size_t Size>
class alignas(Size % 16 == 0 ? 16 : 8) EntityPlace : public FcBase {
 public:
  const ClassInfo& classInfo() const override { std::abort(); }

 private:
  std::array<std::byte, Size - sizeof(FcBase)> m_rest;
};

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
  void construct(U* place, void (*make)(void*)) {
    make(place);
  }
  template <class U>
  void destroy(U* place) {
    fc::destroy(*place);
  }

  friend bool operator==(const EntityAllocator&, const EntityAllocator&) { return true; }
};

using Construct = void (*)(void* place);
using Make = std::shared_ptr<FcBase> (*)(Construct);

template <std::size_t Size>
std::shared_ptr<FcBase> make(Construct construct) {
  using Place = EntityPlace<Size>;
  static_assert(sizeof(Place) == Size);
  return std::allocate_shared<Place>(EntityAllocator<Place>(), construct);
}

constexpr std::size_t smallestEntity = sizeof(FcBase) + 8;

template <std::size_t... Steps>
constexpr auto makersOf(std::index_sequence<Steps...>) {
  return std::array<Make, sizeof...(Steps)>{make<smallestEntity + 8 * Steps>...};
}

constexpr auto makers =
    makersOf(std::make_index_sequence<(largestEntity - smallestEntity) / 8 + 1>());

}  // namespace

std::shared_ptr<FcBase> makeEntityOfSize(std::size_t size, Construct construct) {
  return makers[size < smallestEntity ? 0 : (size - smallestEntity) / 8](construct);
}

}  // namespace qor::fc
