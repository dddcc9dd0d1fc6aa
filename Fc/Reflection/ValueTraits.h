#pragma once

#include <array>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Fc/BaseType.h"
#include "Fc/FcBase.h"
#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/CountedTriple.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/InverseEntries.h"
#include "Fc/Reflection/SelectBase.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Reflection/ValueSource.h"

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

template <class T>
struct ValueTraits<std::shared_ptr<T>> {
  using Reference = std::shared_ptr<T>;
  static constexpr TypeFamily family = TypeFamily::reference;
  static constexpr bool entitiesOnly = true;
  static constexpr const EnumInfo* enumeration = nullptr;
  static constexpr const SelectInfo* select = nullptr;

  static std::optional<std::string> getAsString(const Reference&) {
    return getMemberAsStringObject();
  }
  static bool setFromString(Reference&, const std::string&) { return setMemberFromStringObject(); }
  static LocalValue getLocalValue(const Reference& m) {
    return m ? LocalValue(std::static_pointer_cast<FcBase>(m)) : LocalValue(details::EmptyValue());
  }
  static bool setLocalValue(Reference& m, const LocalValue& v) {
    if (v.isEmpty()) {
      m.reset();
      return true;
    }
    const auto* entity = std::get_if<std::shared_ptr<FcBase>>(&v.value);
    if (!entity) return false;
    m = fcCast<T>(*entity);
    return true;
  }
  static void forEachEntity(const Reference& m, TypeOperations::EntityCallback callback) {
    if (m) callback(*m);
  }
  static bool read(Reference& m, ValueSource& source, const TypeOperations& self) {
    m.reset();
    if (source.next() != ValueSource::Kind::entity) {
      if (skipNull(source)) return true;
      return rejectNext(source, Rejection::wrongKind, self);
    }
    const std::shared_ptr<FcBase>* entity = source.takeEntity();
    if (!entity) return false;
    m = fcCast<T>(*entity);
    if (!m) source.rejected(Rejection::wrongClass, (*entity)->ifcNameUpper(), self);
    return m != nullptr;
  }
  static void write(const Reference& m, ValueSink& sink) {
    if (m)
      sink.entity(*m);
    else
      sink.null();
  }
  static void assign(Reference& m, const Reference& source, FcCopySettings& settings) {
    m = source ? fcCast<T>(source->allocateAndQueueCopy(settings)) : nullptr;
  }
  static std::weak_ordering compare(const Reference& a, const Reference& b,
                                    TypeOperations::PairCallback defer) {
    if (a && b) defer(*a, *b);
    return (a != nullptr) <=> (b != nullptr);
  }
};

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

/// "(a, b, c)"; empty when one element has no text.
template <class List>
std::optional<std::string> listAsString(const List& list) {
  std::string text = "(";
  bool first = true;
  for (const auto& element : list) {
    const auto part = ValueTraits<std::remove_cvref_t<decltype(element)>>::getAsString(element);
    if (!part) return std::nullopt;
    if (!first) text += ", ";
    first = false;
    text += *part;
  }
  return text + ")";
}

template <class T>
struct ValueTraits<std::vector<T>> {
  using List = std::vector<T>;
  using Traits = ValueTraits<T>;
  static constexpr TypeFamily family = TypeFamily::list;
  static constexpr bool entitiesOnly = Traits::entitiesOnly;
  static constexpr const EnumInfo* enumeration = Traits::enumeration;
  static constexpr const SelectInfo* select = Traits::select;

  static std::optional<std::string> getAsString(const List& m) {
    if constexpr (entitiesOnly)
      return getMemberAsStringObject();
    else
      return listAsString(m);
  }
  static bool setFromString(List&, const std::string&) {
    return entitiesOnly ? setMemberFromStringObject() : setMemberFromStringPrimitive();
  }
  static LocalValue getLocalValue(const List& m) {
    LocalValue::List values;
    values.reserve(m.size());
    for (const T& element : m) values.push_back(Traits::getLocalValue(element));
    return LocalValue(std::move(values));
  }
  static bool setLocalValue(List& m, const LocalValue& v) {
    if (v.isEmpty()) {
      m.clear();
      return true;
    }
    const auto* values = std::get_if<LocalValue::List>(&v.value);
    if (!values) return false;
    List list(values->size());
    for (std::size_t i = 0; i < list.size(); ++i)
      if (!Traits::setLocalValue(list[i], (*values)[i])) return false;
    m = std::move(list);
    return true;
  }
  static void forEachEntity(const List& m, TypeOperations::EntityCallback callback) {
    for (const T& element : m) Traits::forEachEntity(element, callback);
  }
  static void forEachTarget(const List& m, TypeOperations::EntityCallback callback) {
    for (const T& element : m) TypeOperationsMaker<T>::forEachTarget(&element, callback);
  }
  /// An element that doesn't fit is left out, the others stay.
  static bool read(List& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::list)
      return rejectNext(source, Rejection::wrongKind, self);
    m.clear();
    source.openList();
    while (source.more()) {
      if (!Traits::read(m.emplace_back(), source, operationsOf<T>)) m.pop_back();
    }
    m.shrink_to_fit();
    return true;
  }
  static void write(const List& m, ValueSink& sink) {
    sink.openList();
    for (const T& element : m) Traits::write(element, sink);
    sink.closeList();
  }
  static void assign(List& m, const List& source, FcCopySettings& settings) {
    if constexpr (std::is_base_of_v<PlainValueTraits, Traits> &&
                  Traits::family != TypeFamily::select) {
      m = source;
    } else {
      m.clear();
      m.reserve(source.size());
      for (const T& element : source) Traits::assign(m.emplace_back(), element, settings);
    }
  }
  static std::weak_ordering compare(const List& a, const List& b,
                                    TypeOperations::PairCallback defer) {
    return listOrder(a, b, defer);
  }
};

/// Reads a list of exactly, or with `atLeast` given of at least that many, elements into `out`;
/// false and a report otherwise.
template <class T, std::size_t N>
bool readTuple(std::array<T, N>& out, std::size_t& count, std::size_t atLeast, ValueSource& source,
               const TypeOperations& self) {
  if (source.next() != ValueSource::Kind::list)
    return rejectNext(source, Rejection::wrongKind, self);
  bool sound = true;
  count = 0;
  source.openList();
  while (source.more()) {
    if (count < N)
      sound = ValueTraits<T>::read(out[count], source, operationsOf<T>) && sound;
    else
      source.skip();
    ++count;
  }
  if (sound && (count > N || count < atLeast)) {
    source.rejected(Rejection::wrongCount, {}, self);
    return false;
  }
  return sound;
}

/// A list whose length the schema fixes: two or three numbers.
template <class T, std::size_t N>
struct ValueTraits<std::array<T, N>> : PlainValueTraits {
  using Tuple = std::array<T, N>;
  using Number = std::remove_cvref_t<decltype(std::get<0>(
      std::declval<std::array<typename T::ValueType, 1>>()))>;
  using Numbers = std::array<Number, N>;
  static constexpr TypeFamily family = TypeFamily::tuple;

  static std::optional<std::string> getAsString(const Tuple& m) { return listAsString(m); }
  static bool setFromString(Tuple&, const std::string&) { return setMemberFromStringPrimitive(); }
  static LocalValue getLocalValue(const Tuple& m) {
    Numbers numbers;
    for (std::size_t i = 0; i < N; ++i) numbers[i] = m[i];
    return LocalValue(numbers);
  }
  static bool setLocalValue(Tuple& m, const LocalValue& v) {
    const auto* numbers = std::get_if<Numbers>(&v.value);
    if (!numbers) return false;
    for (std::size_t i = 0; i < N; ++i) m[i] = (*numbers)[i];
    return true;
  }
  static bool read(Tuple& m, ValueSource& source, const TypeOperations& self) {
    Tuple numbers;
    std::size_t count = 0;
    if (!readTuple(numbers, count, N, source, self)) return false;
    m = numbers;
    return true;
  }
  static void write(const Tuple& m, ValueSink& sink) {
    sink.openList();
    for (const T& number : m) ValueTraits<T>::write(number, sink);
    sink.closeList();
  }
  static std::weak_ordering compare(const Tuple& a, const Tuple& b,
                                    TypeOperations::PairCallback defer) {
    return listOrder(a, b, defer);
  }
};

/// Coordinates and ratios: a list to reflection, three numbers as text.
template <class T>
struct ValueTraits<CountedTriple<T>> : PlainValueTraits {
  using Triple = CountedTriple<T>;
  static constexpr TypeFamily family = TypeFamily::list;

  static std::optional<std::string> getAsString(const Triple& m) {
    return listAsString(std::array<T, Triple::capacity>{m[0], m[1], m[2]});
  }
  static bool setFromString(Triple&, const std::string&) { return setMemberFromStringPrimitive(); }
  static LocalValue getLocalValue(const Triple& m) {
    return ValueTraits<std::vector<T>>::getLocalValue({m.begin(), m.end()});
  }
  static bool setLocalValue(Triple& m, const LocalValue& v) {
    std::vector<T> values;
    if (!ValueTraits<std::vector<T>>::setLocalValue(values, v) || values.size() > Triple::capacity)
      return false;
    m.clear();
    for (const T& value : values) m.pushBack(value);
    return true;
  }
  static bool read(Triple& m, ValueSource& source, const TypeOperations& self) {
    std::array<T, Triple::capacity> numbers;
    std::size_t count = 0;
    if (!readTuple(numbers, count, 0, source, self)) return false;
    m.clear();
    for (std::size_t i = 0; i < count; ++i) m.pushBack(numbers[i]);
    return true;
  }
  static void write(const Triple& m, ValueSink& sink) {
    sink.openList();
    for (const T& number : m) ValueTraits<T>::write(number, sink);
    sink.closeList();
  }
  static std::weak_ordering compare(const Triple& a, const Triple& b,
                                    TypeOperations::PairCallback defer) {
    return listOrder(a, b, defer);
  }
};

/// The operations of inverse attributes, which reflection reads and never writes.
extern QOR_API const TypeOperations inverseSetOperations;
extern QOR_API const TypeOperations inverseRefOperations;

/// The operations of an alternative of type `T` of a select class.
template <class T>
struct AlternativeOperationsMaker {
  static constexpr bool inPlace = sizeof(T) <= 16 && alignof(T) <= alignof(std::max_align_t) &&
                                  std::is_nothrow_move_constructible_v<T>;

  static void construct(void* place) { new (place) T(); }
  static void copy(void* place, const void* value) { new (place) T(*static_cast<const T*>(value)); }
  static void move(void* place, void* value) { new (place) T(std::move(*static_cast<T*>(value))); }
  static void destroy(void* value) { static_cast<T*>(value)->~T(); }
  static std::optional<std::string> getAsString(const void* value) {
    if constexpr (requires(const T& v) { v.getAsString(); })
      return static_cast<const T*>(value)->getAsString();
    else if constexpr (std::is_base_of_v<SelectBase, T>)
      return static_cast<const T*>(value)->getAsString(false);
    else
      return valueAsString(*static_cast<const T*>(value));
  }
  static bool setFromString(void* value, const std::string& text) {
    if constexpr (requires(T & v) { v.setFromString(text); })
      return static_cast<T*>(value)->setFromString(text);
    else
      return valueFromString(*static_cast<T*>(value), text);
  }
  static SelectBase* select(void* value) {
    if constexpr (std::is_base_of_v<SelectBase, T>) return static_cast<T*>(value);
    return nullptr;
  }
  static FcBase* entity(const void* value) {
    if constexpr (ValueTraits<T>::family == TypeFamily::reference)
      return static_cast<const T*>(value)->get();
    return nullptr;
  }
  static void setEntity(void* value, const std::shared_ptr<FcBase>& entity) {
    if constexpr (ValueTraits<T>::family == TypeFamily::reference)
      *static_cast<T*>(value) = std::static_pointer_cast<typename T::element_type>(entity);
  }
};

template <class T>
inline constexpr AlternativeOperations alternativeOperationsOf = {
    sizeof(T),
    AlternativeOperationsMaker<T>::inPlace,
    &AlternativeOperationsMaker<T>::construct,
    &AlternativeOperationsMaker<T>::copy,
    &AlternativeOperationsMaker<T>::move,
    &AlternativeOperationsMaker<T>::destroy,
    &AlternativeOperationsMaker<T>::getAsString,
    &AlternativeOperationsMaker<T>::setFromString,
    std::is_base_of_v<SelectBase, T> ? &AlternativeOperationsMaker<T>::select : nullptr,
    ValueTraits<T>::family == TypeFamily::reference ? &AlternativeOperationsMaker<T>::entity
                                                    : nullptr,
    ValueTraits<T>::family == TypeFamily::reference ? &AlternativeOperationsMaker<T>::setEntity
                                                    : nullptr,
    &operationsOf<T>,
};

}  // namespace qor::fc
