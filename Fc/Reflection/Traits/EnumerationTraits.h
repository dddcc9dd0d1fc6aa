#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

template <class T>
requires std::is_base_of_v<EnumBase<T>, T>
struct ValueTraits<T> : PlainValueTraits {
  static constexpr TypeFamily family = TypeFamily::enumeration;
  static constexpr const EnumInfo* enumeration = &T::table;

  static std::optional<std::string> getAsString(const T& m) { return T::nameFromEnum(m.value()); }
  static bool setFromString(T& m, const std::string& text) {
    const auto value = T::enumFromName(text.c_str());
    if (value) m = *value;
    return value.has_value();
  }
  static LocalValue getLocalValue(const T& m) { return m.getLocalValue(); }
  static bool setLocalValue(T& m, const LocalValue& v) {
    const auto* name = std::get_if<std::string>(&v.value);
    if (!name) return false;
    const auto value = T::enumFromName(name->c_str());
    m = value ? T(*value) : T::last();
    return true;
  }
  static bool read(T& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::enumerator)
      return rejectNext(source, Rejection::wrongKind, self);
    const std::string_view name = source.takeEnumerator();
    if (const auto position = T::table.find(name)) {
      m = static_cast<typename T::Enum>(*position);
      return true;
    }
    source.rejected(Rejection::unknownEnumerator, name, self);
    return false;
  }
  static void write(const T& m, ValueSink& sink) { sink.enumerator(T::nameFromEnum(m.value())); }
  static std::weak_ordering compare(const T& a, const T& b, TypeOperations::PairCallback) {
    return orderOf(a.value(), b.value());
  }
};

}  // namespace qor::fc
