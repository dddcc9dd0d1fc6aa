#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Fc/BaseType.h"
#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

/// A value that is one alternative of `LocalValue` and has a text form.
template <class T>
struct ScalarTraits {
  static std::optional<std::string> getAsString(const T& m) { return valueAsString(m); }
  static bool setFromString(T& m, const std::string& text) { return valueFromString(m, text); }
  static LocalValue getLocalValue(const T& m) { return LocalValue(m); }
  static bool setLocalValue(T& m, const LocalValue& v) {
    const T* stored = std::get_if<T>(&v.value);
    if (stored) m = *stored;
    return stored != nullptr;
  }
  static std::weak_ordering compare(const T& a, const T& b) { return orderOf(a, b); }
};

/// The record of a scalar, whose functions are made in this header's source alone.
constexpr TypeOperations scalarOperations(const TypeFunctions& functions) {
  return {TypeFamily::value, false, nullptr, nullptr, &functions};
}

extern QOR_API const TypeFunctions realFunctions;
extern QOR_API const TypeFunctions integerFunctions;
extern QOR_API const TypeFunctions textFunctions;
extern QOR_API const TypeFunctions booleanFunctions;
extern QOR_API const TypeFunctions logicalFunctions;
extern QOR_API const TypeFunctions guidFunctions;
extern QOR_API const TypeFunctions binaryFunctions;

template <>
struct ValueTraits<double> : ScalarTraits<double> {
  static constexpr TypeOperations operations = scalarOperations(realFunctions);
  static bool read(double& m, ValueSource& source, const TypeOperations& self) {
    const ValueSource::Kind kind = source.next();
    if (kind != ValueSource::Kind::real && kind != ValueSource::Kind::integer)
      return rejectNext(source, Rejection::wrongKind, self);
    if (source.takeReal(m)) return true;
    source.rejected(Rejection::outOfRange, {}, self);
    return false;
  }
  static void write(double m, ValueSink& sink) { sink.real(m); }
};

template <>
struct ValueTraits<std::int64_t> : ScalarTraits<std::int64_t> {
  static constexpr TypeOperations operations = scalarOperations(integerFunctions);
  static bool read(std::int64_t& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::integer)
      return rejectNext(source, Rejection::wrongKind, self);
    if (source.takeInteger(m)) return true;
    source.rejected(Rejection::outOfRange, {}, self);
    return false;
  }
  static void write(std::int64_t m, ValueSink& sink) { sink.integer(m); }
};

template <>
struct ValueTraits<std::string> {
  static constexpr TypeOperations operations = scalarOperations(textFunctions);
};

template <>
struct ValueTraits<bool> {
  static constexpr TypeOperations operations = scalarOperations(booleanFunctions);
};

template <>
struct ValueTraits<LogicalValue> {
  static constexpr TypeOperations operations = scalarOperations(logicalFunctions);
};

template <>
struct ValueTraits<Guid> {
  static constexpr TypeOperations operations = scalarOperations(guidFunctions);
};

template <>
struct ValueTraits<std::vector<std::uint8_t>> {
  static constexpr TypeOperations operations = scalarOperations(binaryFunctions);
};

}  // namespace qor::fc
