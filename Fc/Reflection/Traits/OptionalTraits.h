#pragma once

#include <cstdint>
#include <optional>

#include "Fc/Reflection/Traits/TraitsBase.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// For all members that may be absent.
extern QOR_API const TypeFunctions optionalFunctions;

struct OptionalOperations : TypeOperations {
  enum class Access : std::uint8_t { look, engage, clear };

  const TypeOperations* element;
  /// The address of the value, null where there is none; after `engage` that of a fresh one.
  void* (*value)(void* optional, Access access);
};

template <class T>
struct ValueTraits<std::optional<T>> {
  static void* value(void* optional, OptionalOperations::Access access) {
    auto& m = *static_cast<std::optional<T>*>(optional);
    if (access == OptionalOperations::Access::engage) return &m.emplace();
    if (access == OptionalOperations::Access::clear) m.reset();
    return m ? &*m : nullptr;
  }
  static constexpr const TypeOperations& element = operationsOf<T>;
  static constexpr OptionalOperations operations{
      {element.family, element.entitiesOnly, element.enumeration, element.select,
       &optionalFunctions},
      &element,
      value};
};

}  // namespace qor::fc
