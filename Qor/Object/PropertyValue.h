#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "Qor/Platform/Export.h"

namespace qor::object {

/// The value of a property as user interfaces and hosts pass it, with the kind that it has there;
/// empty by default.
class QOR_API PropertyValue {
 public:
  enum class Type : std::uint8_t {
    Empty,
    Text,
    OptionalText,
    Double,
    Float,
    Int32,
    UInt32,
    Int64,
    UInt64,
    Bool,
    OptionalBool
  };

  PropertyValue() = default;
  PropertyValue(const char* text) : m_value(std::string(text)) {}
  /// Holds exactly the kind that is given: nothing is converted.
  template <class T>
  requires std::is_constructible_v < std::variant < std::string, std::optional<std::string>,
  double, float, std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, bool,
      std::optional < bool >>, std::in_place_type_t<T>,
      T > PropertyValue(T value) : m_value(std::in_place_type<T>, std::move(value)) {}

  Type getType() const { return static_cast<Type>(m_value.index()); }
  bool isEmpty() const { return getType() == Type::Empty; }

  // Each gives the value of its kind. A value of another kind raises an assert and gives an empty
  // text, 0, false or nothing.
  std::string getText() const { return get<std::string>(); }
  std::optional<std::string> getOptionalText() const { return get<std::optional<std::string>>(); }
  double getDouble() const { return get<double>(); }
  float getFloat() const { return get<float>(); }
  std::int32_t getInt32() const { return get<std::int32_t>(); }
  std::uint32_t getUInt32() const { return get<std::uint32_t>(); }
  std::int64_t getInt64() const { return get<std::int64_t>(); }
  std::uint64_t getUInt64() const { return get<std::uint64_t>(); }
  bool getBool() const { return get<bool>(); }
  std::optional<bool> getOptionalBool() const { return get<std::optional<bool>>(); }

  friend bool operator==(const PropertyValue&, const PropertyValue&) = default;

 private:
  template <class T>
  T get() const {
    if (const T* value = std::get_if<T>(&m_value)) return *value;
    reportWrongType();
    return T();
  }
  static void reportWrongType();

  std::variant<std::monostate, std::string, std::optional<std::string>, double, float, std::int32_t,
               std::uint32_t, std::int64_t, std::uint64_t, bool, std::optional<bool>>
      m_value;
};

}  // namespace qor::object
