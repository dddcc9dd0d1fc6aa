#pragma once

#include <optional>
#include <string>
#include <type_traits>

#include "Fc/BaseType.h"
#include "Fc/Reflection/Traits/ScalarTraits.h"

namespace qor::fc {

/// A defined type is its value under another name.
template <class T>
requires std::is_base_of_v<BaseType<typename T::ValueType>, T>
struct ValueTraits<T> : ValueTraits<typename T::ValueType> {
  using Value = typename T::ValueType;
  using Traits = ValueTraits<Value>;
  static std::optional<std::string> getAsString(const T& m) {
    return Traits::getAsString(m.value());
  }
  static bool setFromString(T& m, const std::string& text) {
    return Traits::setFromString(m.valueNonConst(), text);
  }
  static LocalValue getLocalValue(const T& m) { return Traits::getLocalValue(m.value()); }
  static bool setLocalValue(T& m, const LocalValue& v) {
    return Traits::setLocalValue(m.valueNonConst(), v);
  }
  static void forEachEntity(const T& m, TypeOperations::EntityCallback callback) {
    Traits::forEachEntity(m.value(), callback);
  }
  static bool read(T& m, ValueSource& source, const TypeOperations& self) {
    return Traits::read(m.valueNonConst(), source, self);
  }
  static void write(const T& m, ValueSink& sink) { Traits::write(m.value(), sink); }
  static void assign(T& m, const T& source, FcCopySettings& settings) {
    Traits::assign(m.valueNonConst(), source.value(), settings);
  }
  static std::weak_ordering compare(const T& a, const T& b, TypeOperations::PairCallback defer) {
    return Traits::compare(a.value(), b.value(), defer);
  }
};

}  // namespace qor::fc
