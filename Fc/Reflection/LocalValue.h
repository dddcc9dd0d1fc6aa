#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Qor/Id/Guid.h"
#include "Qor/Math/LogicalValue.h"

namespace qor::fc {

class FcBase;

namespace details {

/// Index 0 of a `LocalValueBase`: the entity has no such attribute, or a select can't report its
/// state.
struct NoAttribute {
  friend bool operator==(NoAttribute, NoAttribute) { return true; }
};

/// Index 1 of a `LocalValueBase`: the attribute exists and has no value.
struct EmptyValue {
  friend bool operator==(EmptyValue, EmptyValue) { return true; }
};

/// The value of one attribute with its kind: what crosses the border between a program that knows
/// attributes by name only and the typed members.
///
/// Fourteen alternatives in a fixed order, so that `value.index()` may be used as the kind. Numbers
/// are those of the model (SI, radians). Lists of any depth are vectors of full values.
template <class Entity>
struct LocalValueBase {
  using List = std::vector<LocalValueBase>;
  using Bytes = std::vector<std::uint8_t>;
  using Variant = std::variant<NoAttribute, EmptyValue, bool, double, std::int64_t, std::string,
                               LogicalValue, Bytes, Guid, Entity, std::array<double, 2>,
                               std::array<double, 3>, std::array<std::int64_t, 3>, List>;

  LocalValueBase() = default;
  template <class T>
  requires(!std::is_same_v<std::remove_cvref_t<T>, LocalValueBase>) explicit LocalValueBase(T&& v)
      : value(std::in_place_type<std::remove_cvref_t<T>>, std::forward<T>(v)) {}

  /// The kind, 0 to 13.
  std::size_t index() const { return value.index(); }
  bool isEmpty() const { return std::holds_alternative<EmptyValue>(value); }

  friend bool operator==(const LocalValueBase&, const LocalValueBase&) = default;

  Variant value;
  /// The type of the value where the attribute is a select over defined types, such as
  /// "IfcAreaMeasure".
  std::optional<std::string> typeName;
};

}  // namespace details

using LocalValue = details::LocalValueBase<std::shared_ptr<FcBase>>;

}  // namespace qor::fc
