#pragma once

#include <optional>
#include <string>
#include <utility>

#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

template <class T>
struct ValueTraits<std::optional<T>> {
  using Optional = std::optional<T>;
  using Traits = ValueTraits<T>;
  static constexpr TypeFamily family = Traits::family;
  static constexpr bool entitiesOnly = Traits::entitiesOnly;
  static constexpr const EnumInfo* enumeration = Traits::enumeration;
  static constexpr const SelectInfo* select = Traits::select;

  static std::optional<std::string> getAsString(const Optional& m) {
    return m ? Traits::getAsString(*m) : std::nullopt;
  }
  static bool setFromString(Optional& m, const std::string& text) {
    if (!m) {
      if constexpr (Traits::family == TypeFamily::enumeration)
        m = T::last();
      else
        m.emplace();
    }
    return Traits::setFromString(*m, text);
  }
  static LocalValue getLocalValue(const Optional& m) {
    return m ? Traits::getLocalValue(*m) : LocalValue(details::EmptyValue());
  }
  static bool setLocalValue(Optional& m, const LocalValue& v) {
    if (v.isEmpty()) {
      m.reset();
      return true;
    }
    T value{};
    if (!Traits::setLocalValue(value, v)) return false;
    m = std::move(value);
    return true;
  }
  static void forEachEntity(const Optional& m, TypeOperations::EntityCallback callback) {
    if (m) Traits::forEachEntity(*m, callback);
  }
  static void forEachTarget(const Optional& m, TypeOperations::EntityCallback callback) {
    if (m) TypeOperationsMaker<T>::forEachTarget(&*m, callback);
  }
  static bool read(Optional& m, ValueSource& source, const TypeOperations&) {
    m.reset();
    if (skipNull(source)) return true;
    const bool stored = Traits::read(m.emplace(), source, operationsOf<T>);
    if (!stored) m.reset();
    return stored;
  }
  static void write(const Optional& m, ValueSink& sink) {
    if (m)
      Traits::write(*m, sink);
    else
      sink.null();
  }
  static void assign(Optional& m, const Optional& source, FcCopySettings& settings) {
    m.reset();
    if (source) Traits::assign(m.emplace(), *source, settings);
  }
  static std::weak_ordering compare(const Optional& a, const Optional& b,
                                    TypeOperations::PairCallback defer) {
    if (a && b) return Traits::compare(*a, *b, defer);
    return a.has_value() <=> b.has_value();
  }
};

}  // namespace qor::fc
