#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <optional>
#include <string>
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

  static void construct(void* place) { new (place) T(); }
  static void copy(void* place, const void* value) { new (place) T(*static_cast<const T*>(value)); }
  static void move(void* place, void* value) { new (place) T(std::move(*static_cast<T*>(value))); }
  static void destroy(void* value) { static_cast<T*>(value)->~T(); }
  static std::optional<std::string> getAsString(const void* value) {
    if constexpr (requires(const T& v) { v.getAsString(); })
      return static_cast<const T*>(value)->getAsString();
    else if constexpr (std::is_base_of_v<SelectBase, T>)
      return static_cast<const T*>(value)->getAsString(false);
    else
      return valueAsString(*static_cast<const T*>(value));
  }
  static bool setFromString(void* value, const std::string& text) {
    if constexpr (requires(T & v) { v.setFromString(text); })
      return static_cast<T*>(value)->setFromString(text);
    else
      return valueFromString(*static_cast<T*>(value), text);
  }
  static SelectBase* select(void* value) {
    if constexpr (std::is_base_of_v<SelectBase, T>) return static_cast<T*>(value);
    return nullptr;
  }
  static FcBase* entity(const void* value) {
    if constexpr (ValueTraits<T>::family == TypeFamily::reference)
      return static_cast<const T*>(value)->get();
    return nullptr;
  }
  static void setEntity(void* value, const std::shared_ptr<FcBase>& entity) {
    if constexpr (ValueTraits<T>::family == TypeFamily::reference)
      *static_cast<T*>(value) = std::static_pointer_cast<typename T::element_type>(entity);
  }
};

template <class T>
inline constexpr AlternativeOperations alternativeOperationsOf = {
    sizeof(T),
    AlternativeOperationsMaker<T>::inPlace,
    &AlternativeOperationsMaker<T>::construct,
    &AlternativeOperationsMaker<T>::copy,
    &AlternativeOperationsMaker<T>::move,
    &AlternativeOperationsMaker<T>::destroy,
    &AlternativeOperationsMaker<T>::getAsString,
    &AlternativeOperationsMaker<T>::setFromString,
    std::is_base_of_v<SelectBase, T> ? &AlternativeOperationsMaker<T>::select : nullptr,
    ValueTraits<T>::family == TypeFamily::reference ? &AlternativeOperationsMaker<T>::entity
                                                    : nullptr,
    ValueTraits<T>::family == TypeFamily::reference ? &AlternativeOperationsMaker<T>::setEntity
                                                    : nullptr,
    &operationsOf<T>,
};

}  // namespace qor::fc
