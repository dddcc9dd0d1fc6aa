#pragma once

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

#include "Fc/BaseType.h"
#include "Fc/Reflection/SelectBase.h"
#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

/// The operations of an alternative of type `T` of a select class.
template <class T>
struct AlternativeOperationsMaker {
  static constexpr bool inPlace = sizeof(T) <= 16 && alignof(T) <= alignof(std::max_align_t) &&
                                  std::is_nothrow_move_constructible_v<T>;
  static constexpr bool isPlain = std::is_trivially_copyable_v<T>;

  static void construct(void* place) { new (place) T(); }
  static void copy(void* place, const void* value) { new (place) T(*static_cast<const T*>(value)); }
  static void move(void* place, void* value) { new (place) T(std::move(*static_cast<T*>(value))); }
  static void destroy(void* value) { static_cast<T*>(value)->~T(); }

  using Spelling = decltype(AlternativeOperations::spelling);
  static constexpr Spelling spelling() {
    if constexpr (requires { typename T::ValueType; })
      return AlternativeOperationsMaker<typename T::ValueType>::spelling();
    else if constexpr (std::is_base_of_v<SelectBase, T> || hasTextForm<T>)
      return nullptr;
    else
      return &TypeSpelling<T>::get;
  }
};

template <class T>
inline constexpr AlternativeOperations alternativeOperationsOf = {
    sizeof(T),
    AlternativeOperationsMaker<T>::inPlace,
    &AlternativeOperationsMaker<T>::construct,
    AlternativeOperationsMaker<T>::isPlain ? nullptr : &AlternativeOperationsMaker<T>::copy,
    AlternativeOperationsMaker<T>::isPlain ? nullptr : &AlternativeOperationsMaker<T>::move,
    AlternativeOperationsMaker<T>::isPlain ? nullptr : &AlternativeOperationsMaker<T>::destroy,
    AlternativeOperationsMaker<T>::spelling(),
    &operationsOf<T>,
};

}  // namespace qor::fc
