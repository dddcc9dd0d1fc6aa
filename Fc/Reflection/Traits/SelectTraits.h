#pragma once

#include <type_traits>

#include "Fc/Reflection/SelectBase.h"
#include "Fc/Reflection/Traits/TraitsBase.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// For all selects: each is a `SelectBase` and a table.
extern QOR_API const TypeFunctions selectFunctions;

template <class T>
requires std::is_base_of_v<SelectBase, T>
struct ValueTraits<T> {
  // So that the address of a member is that of its base.
  static_assert(std::is_standard_layout_v<T>);
  static constexpr TypeOperations operations{TypeFamily::select, !T::hasValues, nullptr, &T::table,
                                             &selectFunctions};
};

}  // namespace qor::fc
