#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/CountedTriple.h"
#include "Fc/Reflection/Traits/ListTraits.h"

namespace qor::fc {

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

}  // namespace qor::fc
