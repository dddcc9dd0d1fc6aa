#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>

#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/SelectInfo.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Reflection/ValueSource.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// How members of type `T` are read, written, spelled and walked. One specialization a family of
/// types; `operationsOf<T>` makes the table of functions from it.
template <class T>
struct ValueTraits;

template <class T>
struct TypeOperationsMaker {
  using Traits = ValueTraits<T>;

  static std::optional<std::string> getAsString(const void* m) {
    return Traits::getAsString(*static_cast<const T*>(m));
  }
  static bool setFromString(void* m, const std::string& text) {
    return Traits::setFromString(*static_cast<T*>(m), text);
  }
  static LocalValue getLocalValue(const void* m) {
    return Traits::getLocalValue(*static_cast<const T*>(m));
  }
  static bool setLocalValue(void* m, const LocalValue& v) {
    return Traits::setLocalValue(*static_cast<T*>(m), v);
  }
  static void forEachEntity(const void* m, TypeOperations::EntityCallback callback) {
    Traits::forEachEntity(*static_cast<const T*>(m), callback);
  }
  static void forEachTarget(const void* m, TypeOperations::EntityCallback callback) {
    const T& member = *static_cast<const T*>(m);
    if constexpr (requires { Traits::forEachTarget(member, callback); })
      Traits::forEachTarget(member, callback);
    else
      Traits::forEachEntity(member, callback);
  }
  static bool read(void* m, ValueSource& source);
  static void write(const void* m, ValueSink& sink) {
    Traits::write(*static_cast<const T*>(m), sink);
  }
  static void assign(void* m, const void* source, FcCopySettings& settings) {
    Traits::assign(*static_cast<T*>(m), *static_cast<const T*>(source), settings);
  }
  static std::weak_ordering compare(const void* a, const void* b,
                                    TypeOperations::PairCallback defer) {
    return Traits::compare(*static_cast<const T*>(a), *static_cast<const T*>(b), defer);
  }
};

/// The operations of members of type `T`: one constant per type in the whole program.
template <class T>
inline constexpr TypeOperations operationsOf = {
    ValueTraits<T>::family,
    ValueTraits<T>::entitiesOnly,
    ValueTraits<T>::enumeration,
    ValueTraits<T>::select,
    &TypeOperationsMaker<T>::getAsString,
    &TypeOperationsMaker<T>::setFromString,
    &TypeOperationsMaker<T>::getLocalValue,
    &TypeOperationsMaker<T>::setLocalValue,
    &TypeOperationsMaker<T>::forEachEntity,
    &TypeOperationsMaker<T>::forEachTarget,
    &TypeOperationsMaker<T>::read,
    &TypeOperationsMaker<T>::write,
    &TypeOperationsMaker<T>::assign,
    &TypeOperationsMaker<T>::compare,
};

template <class T>
bool TypeOperationsMaker<T>::read(void* m, ValueSource& source) {
  return ValueTraits<T>::read(*static_cast<T*>(m), source, operationsOf<T>);
}

/// Reports that what comes next doesn't fit, and passes over it.
QOR_API bool rejectNext(ValueSource& source, Rejection reason, const TypeOperations& expected);
/// True, and the value consumed, when the next one says that there is none.
QOR_API bool skipNull(ValueSource& source);

/// Families that hold no entities and have no select or enumeration below them.
struct PlainValueTraits {
  static constexpr TypeFamily family = TypeFamily::value;
  static constexpr bool entitiesOnly = false;
  static constexpr const EnumInfo* enumeration = nullptr;
  static constexpr const SelectInfo* select = nullptr;
  template <class T>
  static void forEachEntity(const T&, TypeOperations::EntityCallback) {}
  template <class T>
  static void assign(T& m, const T& source, FcCopySettings&) {
    m = source;
  }
};

/// A number that is none stands behind all others and equals itself, so that the order stays one.
template <class T>
std::weak_ordering orderOf(const T& a, const T& b) {
  if (a < b) return std::weak_ordering::less;
  if (b < a) return std::weak_ordering::greater;
  if constexpr (std::is_same_v<T, double>) return (a != a) <=> (b != b);
  return std::weak_ordering::equivalent;
}

/// A shorter list is less than a longer one, lists of one length go by their first difference.
template <class List>
std::weak_ordering listOrder(const List& a, const List& b, TypeOperations::PairCallback defer) {
  if (a.size() != b.size()) return a.size() <=> b.size();
  for (std::size_t i = 0; i < a.size(); ++i) {
    using Element = std::remove_cvref_t<decltype(a[i])>;
    if (const auto order = ValueTraits<Element>::compare(a[i], b[i], defer); order != 0)
      return order;
  }
  return std::weak_ordering::equivalent;
}

}  // namespace qor::fc
