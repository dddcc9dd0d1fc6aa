#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Fc/Reflection/LocalValue.h"

namespace qor::fc {

/// An enumeration of the schema as a table: its name and its enumerators in schema order.
struct EnumInfo {
  std::string_view name;  ///< "IfcWallTypeEnum"
  std::span<const char* const> names;

  /// The position of the enumerator; exact, case sensitive. Linear in the number of enumerators.
  std::optional<std::size_t> find(std::string_view enumerator) const {
    for (std::size_t i = 0; i < names.size(); ++i)
      if (names[i] == enumerator) return i;
    return std::nullopt;
  }
  /// What an absent attribute holds while it is being set, and what an unknown name stores: the
  /// last enumerator, as a rule NOTDEFINED.
  std::uint8_t lastPosition() const { return static_cast<std::uint8_t>(names.size() - 1); }
};

/// What every enumeration class of the schema offers. `Derived` has a nested `Enum`, whose
/// enumerators stand in the schema's order from 0, and `static const EnumInfo& info()`.
template <class Derived>
class EnumBase {
 public:
  /// `value` must be an enumerator: there is no check.
  template <class Enum>
  static const char* nameFromEnum(Enum value) {
    return Derived::info().names[static_cast<std::size_t>(value)];
  }
  /// Empty for a null pointer or an unknown name.
  static auto enumFromName(const char* name) {
    using Enum = typename Derived::Enum;
    std::optional<Enum> result;
    if (name)
      if (auto position = Derived::info().find(name)) result = static_cast<Enum>(*position);
    return result;
  }
  /// All enumerators in schema order.
  static std::vector<std::string> enumNames() {
    return {Derived::info().names.begin(), Derived::info().names.end()};
  }
  /// What an unknown name stores; see `EnumInfo`.
  static Derived last() {
    return static_cast<typename Derived::Enum>(Derived::info().lastPosition());
  }
  /// Alternative 5 with the enumerator's name.
  LocalValue getLocalValue() const {
    return LocalValue(std::string(nameFromEnum(static_cast<const Derived&>(*this).value())));
  }
};

}  // namespace qor::fc
