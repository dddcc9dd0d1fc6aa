#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/CountedTriple.h"
#include "Fc/Reflection/Traits/DefinedTypeTraits.h"
#include "Fc/Reflection/Traits/ListTraits.h"

namespace qor::fc {

/// What tuples of numbers share: they are short and many, so that their code is made for each type.
template <class T, std::size_t N>
struct TupleTraitsBase {
  using Numbers = std::array<T, N>;

  /// "(a, b, c)"; empty when one element has no text.
  static std::optional<std::string> textOf(const Numbers& numbers) {
    std::string text;
    for (const T& number : numbers) {
      const auto part = ValueTraits<T>::getAsString(number);
      if (!part) return std::nullopt;
      text += (text.empty() ? "(" : ", ") + *part;
    }
    return text + ")";
  }
  /// Reads a list of exactly, or with `atLeast` given of at least that many, elements into `out`;
  /// false and a report otherwise.
  static bool readNumbers(Numbers& out, std::size_t& count, std::size_t atLeast,
                          ValueSource& source, const TypeOperations& self) {
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
  template <class List>
  static void write(const List& m, ValueSink& sink) {
    sink.openList();
    for (const T& number : m) ValueTraits<T>::write(number, sink);
    sink.closeList();
  }
  /// A shorter list is less than a longer one, lists of one length go by their first difference.
  template <class List>
  static std::weak_ordering compare(const List& a, const List& b) {
    if (a.size() != b.size()) return a.size() <=> b.size();
    for (std::size_t i = 0; i < a.size(); ++i)
      if (const auto order = orderOf(a[i].value(), b[i].value()); order != 0) return order;
    return std::weak_ordering::equivalent;
  }
};

/// A list whose length the schema fixes: two or three numbers.
template <class T, std::size_t N>
struct ValueTraits<std::array<T, N>> : TupleTraitsBase<T, N> {
  using Tuple = std::array<T, N>;
  using Numbers = std::array<typename T::ValueType, N>;
  static constexpr TypeOperations operations{TypeFamily::tuple, false, nullptr, nullptr,
                                             &TypedFunctions<Tuple>::table};

  static std::optional<std::string> getAsString(const Tuple& m) { return ValueTraits::textOf(m); }
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
    if (!ValueTraits::readNumbers(numbers, count, N, source, self)) return false;
    m = numbers;
    return true;
  }
};

/// Coordinates and ratios: a list to reflection, three numbers as text.
template <class T>
struct ValueTraits<CountedTriple<T>> : TupleTraitsBase<T, CountedTriple<T>::capacity> {
  using Triple = CountedTriple<T>;
  static constexpr TypeOperations operations{TypeFamily::list, false, nullptr, nullptr,
                                             &TypedFunctions<Triple>::table};

  static std::optional<std::string> getAsString(const Triple& m) {
    return ValueTraits::textOf({m[0], m[1], m[2]});
  }
  static bool setFromString(Triple&, const std::string&) { return setMemberFromStringPrimitive(); }
  static LocalValue getLocalValue(const Triple& m) {
    const std::vector<T> values(m.begin(), m.end());
    return operationsOf<std::vector<T>>.getLocalValue(&values);
  }
  static bool setLocalValue(Triple& m, const LocalValue& v) {
    std::vector<T> values;
    if (!operationsOf<std::vector<T>>.setLocalValue(&values, v) || values.size() > Triple::capacity)
      return false;
    m.clear();
    for (const T& value : values) m.pushBack(value);
    return true;
  }
  static bool read(Triple& m, ValueSource& source, const TypeOperations& self) {
    std::array<T, Triple::capacity> numbers;
    std::size_t count = 0;
    if (!ValueTraits::readNumbers(numbers, count, 0, source, self)) return false;
    m.clear();
    for (std::size_t i = 0; i < count; ++i) m.pushBack(numbers[i]);
    return true;
  }
};

}  // namespace qor::fc
