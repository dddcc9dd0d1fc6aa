#pragma once

#include <optional>
#include <string>
#include <type_traits>

#include "Fc/Reflection/SelectBase.h"
#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

template <class T>
requires std::is_base_of_v<SelectBase, T>
struct ValueTraits<T> : PlainValueTraits {
  static constexpr TypeFamily family = TypeFamily::select;
  static constexpr bool entitiesOnly = !T::hasValues;
  static constexpr const SelectInfo* select = &T::table;

  static std::optional<std::string> getAsString(const T& m) { return m.getAsString(false); }
  static bool setFromString(T& m, const std::string& text) { return m.setFromString(text); }
  static LocalValue getLocalValue(const T& m) { return m.getLocalValue(); }
  static bool setLocalValue(T& m, const LocalValue& v) {
    if (v.isEmpty()) m.set(T::Types::NotSet);
    return v.isEmpty() || m.setLocalValue(v);
  }
  static void forEachEntity(const T& m, TypeOperations::EntityCallback callback) {
    m.SelectBase::forEachEntity(T::table, callback);
  }
  static void forEachTarget(const T& m, TypeOperations::EntityCallback callback) {
    if (FcBase* entity = m.getEntity()) callback(*entity);
  }
  static bool read(T& m, ValueSource& source, const TypeOperations& self) {
    return m.SelectBase::read(T::table, source, self);
  }
  static void write(const T& m, ValueSink& sink) { m.SelectBase::write(T::table, sink); }
  static void assign(T& m, const T& source, FcCopySettings& settings) {
    m.assign(source, settings);
  }
  static std::weak_ordering compare(const T& a, const T& b, TypeOperations::PairCallback defer) {
    return a.SelectBase::compare(T::table, b, defer);
  }
};

}  // namespace qor::fc
