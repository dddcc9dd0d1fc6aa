#pragma once

#include <optional>
#include <string>
#include <type_traits>

#include "Fc/BaseType.h"
#include "Fc/Reflection/Traits/ListTraits.h"
#include "Fc/Reflection/Traits/ReferenceTraits.h"
#include "Fc/Reflection/Traits/ScalarTraits.h"

namespace qor::fc {

/// A defined type is its value under another name.
template <class T>
requires std::is_base_of_v<BaseType<typename T::ValueType>, T>
struct ValueTraits<T> {
  // So that the address of a member is that of its value.
  static_assert(std::is_standard_layout_v<T> && sizeof(T) == sizeof(typename T::ValueType));
  using Traits = ValueTraits<typename T::ValueType>;
  static constexpr const auto& operations = Traits::operations;

  static std::optional<std::string> getAsString(const T& m) {
    return Traits::getAsString(m.value());
  }
  static bool read(T& m, ValueSource& source, const TypeOperations& self) {
    return Traits::read(m.valueNonConst(), source, self);
  }
  static void write(const T& m, ValueSink& sink) { Traits::write(m.value(), sink); }
};

}  // namespace qor::fc
