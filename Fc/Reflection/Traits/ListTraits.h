#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

#include "Fc/Reflection/Traits/ScalarTraits.h"  // the list of bytes, which is none
#include "Fc/Reflection/TypeOperations.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// For all lists.
extern QOR_API const TypeFunctions listFunctions;

/// What differs from one type of elements to the next: a few functions on a `std::vector` of it.
struct ListOperations : TypeOperations {
  struct Elements {
    std::byte* first;
    std::size_t count;
  };

  const TypeOperations* element;
  std::size_t elementSize;
  Elements (*elements)(void* list);
  /// The address of a fresh element at the end.
  void* (*append)(void* list);
  /// Leaves the elements from `from` on and before `to`, in as little memory as they need.
  void (*keep)(void* list, std::size_t from, std::size_t to);
  /// Swaps two elements.
  void (*exchange)(void* a, void* b);
  /// The assignment of the vector; null where elements hold entities, which a copy doesn't share.
  void (*copy)(void* list, const void* source);
};

/// Whether elements of type `T` may be copied as they stand, since they hold no entities.
template <class T>
struct IsPlainElement : std::bool_constant<operationsOf<T>.family == TypeFamily::value ||
                                           operationsOf<T>.family == TypeFamily::tuple ||
                                           operationsOf<T>.family == TypeFamily::enumeration> {};
template <class T>
struct IsPlainElement<std::vector<T>> : IsPlainElement<T> {};
template <>
struct IsPlainElement<std::vector<std::uint8_t>> : std::true_type {};

template <class T>
struct ValueTraits<std::vector<T>> {
  using List = std::vector<T>;

  static ListOperations::Elements elements(void* list) {
    List& m = *static_cast<List*>(list);
    return {reinterpret_cast<std::byte*>(m.data()), m.size()};
  }
  static void* append(void* list) { return &static_cast<List*>(list)->emplace_back(); }
  static void keep(void* list, std::size_t from, std::size_t to) {
    List& m = *static_cast<List*>(list);
    if (to - from == m.capacity()) return;
    T* first = m.data();
    m = List(std::make_move_iterator(first + from), std::make_move_iterator(first + to));
  }
  static void exchange(void* a, void* b) {
    using std::swap;
    swap(*static_cast<T*>(a), *static_cast<T*>(b));
  }
  static void copy(void* list, const void* source) {
    *static_cast<List*>(list) = *static_cast<const List*>(source);
  }
  static constexpr auto copyOfPlain() -> decltype(ListOperations::copy) {
    if constexpr (IsPlainElement<T>::value) return copy;
    return nullptr;
  }
  static constexpr const TypeOperations& element = operationsOf<T>;
  static constexpr ListOperations operations{
      {TypeFamily::list, element.entitiesOnly, element.enumeration, element.select, &listFunctions},
      &element,
      sizeof(T),
      elements,
      append,
      keep,
      exchange,
      copyOfPlain()};
};

}  // namespace qor::fc
