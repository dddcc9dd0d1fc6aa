#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

#include "Fc/Reflection/FunctionRef.h"
#include "Fc/Reflection/LocalValue.h"

namespace qor::fc {

class FcCopySettings;
class ValueSource;
class ValueSink;
struct EnumInfo;
struct SelectInfo;

/// The family of an attribute's type.
enum class TypeFamily : std::uint8_t {
  value,
  enumeration,
  reference,
  select,
  list,
  tuple,
  inverse
};

/// What can be done with a member of one C++ type, without knowing the type: made once per distinct
/// type from `ValueTraits`.
///
/// The functions take the address of the member. None of them keeps inverse attributes in step:
/// `FcBase::setLocalValue` and the typed setters do that around them.
struct TypeOperations {
  using EntityCallback = FunctionRef<void(FcBase&)>;
  using PairCallback = FunctionRef<void(const FcBase&, const FcBase&)>;

  TypeFamily family;
  /// Reaches entities only (a reference, a list of them, a select all of whose alternatives are
  /// entities).
  bool entitiesOnly;
  /// Of the element type, below lists and optionals; null where it is no enumeration.
  const EnumInfo* enumeration;
  /// Of the element type; null where it is no select.
  const SelectInfo* select;

  std::optional<std::string> (*getAsString)(const void* member);
  bool (*setFromString)(void* member, const std::string& text);
  LocalValue (*getLocalValue)(const void* member);
  bool (*setLocalValue)(void* member, const LocalValue& value);
  /// Calls back for each entity that the member names; nulls and dead inverse entries are passed
  /// over.
  void (*forEachEntity)(const void* member, EntityCallback callback);
  /// The same for those alone that inverse attributes mirror: not the entities inside a value, such
  /// as a select's set of property set definitions.
  void (*forEachTarget)(const void* member, EntityCallback callback);
  /// Takes one value off the source. What doesn't fit is reported to the source and left out; false
  /// when nothing was stored.
  bool (*read)(void* member, ValueSource& source);
  void (*write)(const void* member, ValueSink& sink);
  /// Copies a member of another entity of the class; references become references to copies, which
  /// `settings` makes or knows.
  void (*assign)(void* member, const void* source, FcCopySettings& settings);
  /// The order of two members by their values. Two references are handed to `defer` and count as
  /// equal here: a result other than equal holds only where all pairs that were handed over before
  /// it are equal.
  std::weak_ordering (*compare)(const void* a, const void* b, PairCallback defer);
};

}  // namespace qor::fc
