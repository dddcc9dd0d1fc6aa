#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "Fc/Reflection/Traits/TraitsBase.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// For all references.
extern QOR_API const TypeFunctions referenceFunctions;

/// What differs from one class of targets to the next: its range of ids, and two functions on a
/// `std::shared_ptr` to it.
struct ReferenceOperations : TypeOperations {
  std::uint32_t firstClassId;
  std::uint32_t lastClassId;
  /// The entity; null for none.
  FcBase* (*entity)(const void* reference);
  /// Puts `entity`, null or one whose class fits, into the reference, and what was there into
  /// `entity`.
  void (*exchange)(void* reference, std::shared_ptr<FcBase>& entity);
};

template <class T>
struct ValueTraits<std::shared_ptr<T>> {
  static FcBase* entity(const void* reference) {
    return static_cast<const std::shared_ptr<T>*>(reference)->get();
  }
  static void exchange(void* reference, std::shared_ptr<FcBase>& entity) {
    auto value = std::static_pointer_cast<T>(std::move(entity));
    value.swap(*static_cast<std::shared_ptr<T>*>(reference));
    entity = std::move(value);
  }
  static constexpr ReferenceOperations operations{
      {TypeFamily::reference, true, nullptr, nullptr, &referenceFunctions},
      T::firstClassId,
      T::lastClassId,
      entity,
      exchange};
};

}  // namespace qor::fc
