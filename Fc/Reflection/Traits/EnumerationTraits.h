#pragma once

#include <type_traits>

#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/Traits/TraitsBase.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// For all enumerations: each is one byte, the position of the enumerator in its table.
extern QOR_API const TypeFunctions enumerationFunctions;

template <class T>
requires std::is_base_of_v<EnumBase<T>, T>
struct ValueTraits<T> {
  static_assert(sizeof(T) == 1 && std::is_trivially_copyable_v<T>);
  static constexpr TypeOperations operations{TypeFamily::enumeration, false, &T::table, nullptr,
                                             &enumerationFunctions};
};

}  // namespace qor::fc
