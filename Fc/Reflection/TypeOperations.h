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

struct TypeOperations;

using EntityCallback = FunctionRef<void(FcBase&)>;
using PairCallback = FunctionRef<void(const FcBase&, const FcBase&)>;

/// The code behind the operations of types: one set for each family, not for each type. What
/// differs between the types of a family stands in the record that each function gets first.
struct TypeFunctions {
  std::optional<std::string> (*getAsString)(const TypeOperations& type, const void* member);
  bool (*setFromString)(const TypeOperations& type, void* member, const std::string& text);
  LocalValue (*getLocalValue)(const TypeOperations& type, const void* member);
  bool (*setLocalValue)(const TypeOperations& type, void* member, const LocalValue& value);
  void (*forEachEntity)(const TypeOperations& type, const void* member, EntityCallback callback);
  void (*forEachTarget)(const TypeOperations& type, const void* member, EntityCallback callback);
  bool (*read)(const TypeOperations& type, void* member, ValueSource& source);
  void (*write)(const TypeOperations& type, const void* member, ValueSink& sink);
  void (*assign)(const TypeOperations& type, void* member, const void* source,
                 FcCopySettings& settings);
  std::weak_ordering (*compare)(const TypeOperations& type, const void* a, const void* b,
                                PairCallback defer);
};

/// What can be done with a member of one C++ type, without knowing the type: one record for each
/// distinct type (`operationsOf`).
///
/// The operations take the address of the member. None of them keeps inverse attributes in step:
/// `FcBase::setLocalValue` and the typed setters do that around them.
struct TypeOperations {
  using EntityCallback = fc::EntityCallback;
  using PairCallback = fc::PairCallback;

  TypeFamily family;
  /// Reaches entities only (a reference, a list of them, a select all of whose alternatives are
  /// entities).
  bool entitiesOnly;
  /// Of the element type, below lists and optionals; null where it is no enumeration.
  const EnumInfo* enumeration;
  /// Of the element type; null where it is no select.
  const SelectInfo* select;
  const TypeFunctions* functions;

  std::optional<std::string> getAsString(const void* member) const {
    return functions->getAsString(*this, member);
  }
  bool setFromString(void* member, const std::string& text) const {
    return functions->setFromString(*this, member, text);
  }
  LocalValue getLocalValue(const void* member) const {
    return functions->getLocalValue(*this, member);
  }
  bool setLocalValue(void* member, const LocalValue& value) const {
    return functions->setLocalValue(*this, member, value);
  }
  /// Calls back for each entity that the member names; nulls and dead inverse entries are passed
  /// over.
  void forEachEntity(const void* member, EntityCallback callback) const {
    functions->forEachEntity(*this, member, callback);
  }
  /// The same for those alone that inverse attributes mirror: not the entities inside a value, such
  /// as a select's set of property set definitions.
  void forEachTarget(const void* member, EntityCallback callback) const {
    functions->forEachTarget(*this, member, callback);
  }
  /// Takes one value off the source. What doesn't fit is reported to the source and left out; false
  /// when nothing was stored.
  bool read(void* member, ValueSource& source) const {
    return functions->read(*this, member, source);
  }
  void write(const void* member, ValueSink& sink) const { functions->write(*this, member, sink); }
  /// Copies a member of another entity of the class; references become references to copies, which
  /// `settings` makes or knows.
  void assign(void* member, const void* source, FcCopySettings& settings) const {
    functions->assign(*this, member, source, settings);
  }
  /// The order of two members by their values. Two references are handed to `defer` and count as
  /// equal here: a result other than equal holds only where all pairs that were handed over before
  /// it are equal.
  std::weak_ordering compare(const void* a, const void* b, PairCallback defer) const {
    return functions->compare(*this, a, b, defer);
  }
};

}  // namespace qor::fc
