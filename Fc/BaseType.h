#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Fc/HelperFunctions.h"

namespace qor::fc {

/// Reports "Not implemented for this type" for a value type without a text form. `type` is the type
/// as the report spells it.
QOR_API void reportNoTextForm(const std::string& type, const char* operation);

/// "class std::shared_ptr<class qor::fc::kernel::FcRoot>"
QOR_API std::string spellingOfReference(const char* target);

/// How a report spells a value type: "class std::vector<double,class std::allocator<double> >".
template <class T>
struct TypeSpelling;

template <>
struct TypeSpelling<double> {
  static std::string get() { return "double"; }
};
template <>
struct TypeSpelling<std::int64_t> {
  static std::string get() { return "__int64"; }
};
template <>
struct TypeSpelling<std::uint8_t> {
  static std::string get() { return "unsigned char"; }
};
template <class T>
struct TypeSpelling<std::shared_ptr<T>> {
  static std::string get() { return spellingOfReference(T::spelling); }
};
template <class T>
requires requires { T::spelling; }
struct TypeSpelling<T> {
  static std::string get() { return "class " + std::string(T::spelling); }
};
template <class T>
struct TypeSpelling<std::vector<T>> {
  static std::string get() {
    const std::string element = TypeSpelling<T>::get();
    const char* close = element.back() == '>' ? " > >" : "> >";
    return "class std::vector<" + element + ",class std::allocator<" + element + close;
  }
};
template <class T, std::size_t N>
struct TypeSpelling<std::array<T, N>> {
  static std::string get() {
    return "class std::array<" + TypeSpelling<T>::get() + "," + std::to_string(N) + ">";
  }
};

/// Whether values of type `T` have a text form.
template <class T>
inline constexpr bool hasTextForm = std::is_same_v<T, std::string> || std::is_same_v<T, double> ||
                                    std::is_same_v<T, std::int64_t> || std::is_same_v<T, bool> ||
                                    std::is_same_v<T, LogicalValue> || std::is_same_v<T, Guid>;

/// The text of a plain value, by its type alone; an assert and the negative result for a type that
/// has no text form.
template <class T>
std::optional<std::string> valueAsString(const T& value) {
  if constexpr (std::is_same_v<T, std::string>)
    return value;
  else if constexpr (std::is_same_v<T, double>)
    return textFromReal(value);
  else if constexpr (std::is_same_v<T, std::int64_t>)
    return std::to_string(value);
  else if constexpr (std::is_same_v<T, bool>)
    return value ? "true" : "false";
  else if constexpr (std::is_same_v<T, LogicalValue>)
    return textFromLogical(value);
  else if constexpr (std::is_same_v<T, Guid>)
    return value.toString(false);
  else {
    reportNoTextForm(TypeSpelling<T>::get(), "getAsString");
    return std::nullopt;
  }
}

template <class T>
bool valueFromString(T& value, const std::string& text) {
  if constexpr (std::is_same_v<T, std::string>) {
    value = text;
    return true;
  } else if constexpr (std::is_same_v<T, double>)
    return realFromText(text, value);
  else if constexpr (std::is_same_v<T, std::int64_t>)
    return integerFromText(text, value);
  else if constexpr (std::is_same_v<T, bool>)
    return booleanFromText(text, value);
  else if constexpr (std::is_same_v<T, LogicalValue>)
    return logicalFromText(text, value);
  else if constexpr (std::is_same_v<T, Guid>)
    return value.boSet(text);
  else {
    reportNoTextForm(TypeSpelling<T>::get(), "setFromString");
    return false;
  }
}

/// The base of every defined type of the schema: one value of type `T` under a name of its own.
/// Converts both ways, so that numbers may be given and taken as numbers.
template <class T>
class BaseType {
 public:
  using ValueType = T;

  BaseType() = default;
  BaseType(T value)
      : m_value(std::move(value)) {
  }  // NOLINT(google-explicit-constructor): a length is given as a number

  const T& value() const { return m_value; }
  T& valueNonConst() { return m_value; }
  operator const T&() const {
    return m_value;
  }  // NOLINT(google-explicit-constructor): and taken as one

  /// "2.500000"; empty, with an assert, where `T` has no text form.
  std::optional<std::string> getAsString() const { return valueAsString(m_value); }
  /// False, and no change, for a text that isn't one of `T`.
  bool setFromString(const std::string& text) { return valueFromString(m_value, text); }

  friend bool operator==(const BaseType&, const BaseType&) = default;
  /// Without this, `length == 2.5` could convert either side and would be ambiguous.
  friend bool operator==(const BaseType& a, const T& b) { return a.m_value == b; }

 private:
  T m_value{};
};

}  // namespace qor::fc
