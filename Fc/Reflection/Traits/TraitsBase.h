#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>

#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Reflection/ValueSource.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// The record of members of type `T`, as `operations`: one specialization for each family of types.
///
/// Values whose code differs from type to type (numbers, texts, tuples) also have the operations
/// themselves here, on typed members.
template <class T>
struct ValueTraits;

/// The operations of members of type `T`: one constant per type in the whole program. A defined
/// type shares that of its value.
template <class T>
inline constexpr const auto& operationsOf = ValueTraits<T>::operations;

/// Turns the typed operations of `Traits` into functions on addresses of members of type `T`.
template <class T, class Traits = ValueTraits<T>>
struct TypedFunctions {
  static std::optional<std::string> getAsString(const TypeOperations&, const void* m) {
    return Traits::getAsString(*static_cast<const T*>(m));
  }
  static bool setFromString(const TypeOperations&, void* m, const std::string& text) {
    return Traits::setFromString(*static_cast<T*>(m), text);
  }
  static LocalValue getLocalValue(const TypeOperations&, const void* m) {
    return Traits::getLocalValue(*static_cast<const T*>(m));
  }
  static bool setLocalValue(const TypeOperations&, void* m, const LocalValue& v) {
    return Traits::setLocalValue(*static_cast<T*>(m), v);
  }
  static void forEachEntity(const TypeOperations&, const void*, EntityCallback) {}
  static bool read(const TypeOperations& self, void* m, ValueSource& source) {
    return Traits::read(*static_cast<T*>(m), source, self);
  }
  static void write(const TypeOperations&, const void* m, ValueSink& sink) {
    Traits::write(*static_cast<const T*>(m), sink);
  }
  static void assign(const TypeOperations&, void* m, const void* source, FcCopySettings&) {
    *static_cast<T*>(m) = *static_cast<const T*>(source);
  }
  static std::weak_ordering compare(const TypeOperations&, const void* a, const void* b,
                                    PairCallback) {
    return Traits::compare(*static_cast<const T*>(a), *static_cast<const T*>(b));
  }

  static constexpr TypeFunctions table{getAsString,   setFromString, getLocalValue, setLocalValue,
                                       forEachEntity, forEachEntity, read,          write,
                                       assign,        compare};
};

/// Reports that what comes next doesn't fit, and passes over it.
QOR_API bool rejectNext(ValueSource& source, Rejection reason, const TypeOperations& expected);
/// True, and the value consumed, when the next one says that there is none.
QOR_API bool skipNull(ValueSource& source);

/// A number that is none stands behind all others and equals itself, so that the order stays one.
template <class T>
std::weak_ordering orderOf(const T& a, const T& b) {
  if (a < b) return std::weak_ordering::less;
  if (b < a) return std::weak_ordering::greater;
  if constexpr (std::is_same_v<T, double>) return (a != a) <=> (b != b);
  return std::weak_ordering::equivalent;
}

}  // namespace qor::fc
