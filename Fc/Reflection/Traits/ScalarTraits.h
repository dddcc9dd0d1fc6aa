#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Fc/BaseType.h"
#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

/// A value that is one alternative of `LocalValue` and has a text form.
template <class T>
struct ScalarTraits : PlainValueTraits {
  static std::optional<std::string> getAsString(const T& m) { return valueAsString(m); }
  static bool setFromString(T& m, const std::string& text) { return valueFromString(m, text); }
  static LocalValue getLocalValue(const T& m) { return LocalValue(m); }
  static bool setLocalValue(T& m, const LocalValue& v) {
    const T* stored = std::get_if<T>(&v.value);
    if (stored) m = *stored;
    return stored != nullptr;
  }
  static std::weak_ordering compare(const T& a, const T& b, TypeOperations::PairCallback) {
    return orderOf(a, b);
  }
};

template <>
struct ValueTraits<double> : ScalarTraits<double> {
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
struct ValueTraits<std::string> : ScalarTraits<std::string> {
  static bool read(std::string& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::text)
      return rejectNext(source, Rejection::wrongKind, self);
    source.takeText(m);
    return true;
  }
  static void write(const std::string& m, ValueSink& sink) { sink.text(m); }
};

template <>
struct ValueTraits<bool> : ScalarTraits<bool> {
  static bool read(bool& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::enumerator)
      return rejectNext(source, Rejection::wrongKind, self);
    const std::string_view name = source.takeEnumerator();
    if (name == "T" || name == "F") {
      m = name == "T";
      return true;
    }
    source.rejected(Rejection::unknownEnumerator, name, self);
    return false;
  }
  static void write(bool m, ValueSink& sink) { sink.enumerator(m ? "T" : "F"); }
};

template <>
struct ValueTraits<LogicalValue> : ScalarTraits<LogicalValue> {
  static bool read(LogicalValue& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::enumerator)
      return rejectNext(source, Rejection::wrongKind, self);
    const std::string_view name = source.takeEnumerator();
    if (name == "T" || name == "F" || name == "U") {
      m = name == "T"   ? LogicalValue::True
          : name == "F" ? LogicalValue::False
                        : LogicalValue::Unknown;
      return true;
    }
    source.rejected(Rejection::unknownEnumerator, name, self);
    return false;
  }
  static void write(LogicalValue m, ValueSink& sink) {
    sink.enumerator(m == LogicalValue::True ? "T" : m == LogicalValue::False ? "F" : "U");
  }
};

template <>
struct QOR_API ValueTraits<Guid> : ScalarTraits<Guid> {
  static bool read(Guid& m, ValueSource& source, const TypeOperations& self);
  static void write(const Guid& m, ValueSink& sink);
};

template <>
struct QOR_API ValueTraits<std::vector<std::uint8_t>> : ScalarTraits<std::vector<std::uint8_t>> {
  using Bytes = std::vector<std::uint8_t>;
  static bool setFromString(Bytes&, const std::string&) { return setMemberFromStringPrimitive(); }
  static bool read(Bytes& m, ValueSource& source, const TypeOperations& self);
  static void write(const Bytes& m, ValueSink& sink) { sink.binary(m); }
  static std::weak_ordering compare(const Bytes& a, const Bytes& b, TypeOperations::PairCallback) {
    return a.size() != b.size() ? std::weak_ordering(a.size() <=> b.size()) : orderOf(a, b);
  }
};

}  // namespace qor::fc
