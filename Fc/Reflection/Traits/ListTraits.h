#pragma once

#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/Traits/ScalarTraits.h"  // the list of bytes, which is none

namespace qor::fc {

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

}  // namespace qor::fc
