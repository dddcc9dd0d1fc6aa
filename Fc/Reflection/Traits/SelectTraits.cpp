#include "Fc/Reflection/Traits/SelectTraits.h"

#include <optional>
#include <string>

namespace qor::fc {

/// The operations of `SelectBase`, with the table that the record of the type names.
struct SelectFunctions {
  static SelectBase& at(void* m) { return SelectBase::nestedAt(m); }
  static const SelectBase& at(const void* m) { return SelectBase::nestedAt(m); }

  static std::optional<std::string> getAsString(const TypeOperations& type, const void* m) {
    return at(m).getAsString(*type.select, false);
  }
  static bool setFromString(const TypeOperations& type, void* m, const std::string& text) {
    return at(m).setFromString(*type.select, text);
  }
  static LocalValue getLocalValue(const TypeOperations& type, const void* m) {
    return at(m).getLocalValue(*type.select);
  }
  static bool setLocalValue(const TypeOperations& type, void* m, const LocalValue& v) {
    if (v.isEmpty()) at(m).reset(*type.select);
    return v.isEmpty() || at(m).setLocalValue(*type.select, v);
  }
  static void forEachEntity(const TypeOperations& type, const void* m, EntityCallback callback) {
    at(m).forEachEntity(*type.select, callback);
  }
  static void forEachTarget(const TypeOperations& type, const void* m, EntityCallback callback) {
    if (FcBase* entity = at(m).getEntity(*type.select)) callback(*entity);
  }
  static bool read(const TypeOperations& type, void* m, ValueSource& source) {
    return at(m).read(*type.select, source, type);
  }
  static void write(const TypeOperations& type, const void* m, ValueSink& sink) {
    at(m).write(*type.select, sink);
  }
  static void assign(const TypeOperations& type, void* m, const void* source,
                     FcCopySettings& settings) {
    at(m).assign(*type.select, at(source), settings);
  }
  static std::weak_ordering compare(const TypeOperations& type, const void* a, const void* b,
                                    PairCallback defer) {
    return at(a).compare(*type.select, at(b), defer);
  }
};

constinit const TypeFunctions selectFunctions = {
    SelectFunctions::getAsString,   SelectFunctions::setFromString, SelectFunctions::getLocalValue,
    SelectFunctions::setLocalValue, SelectFunctions::forEachEntity, SelectFunctions::forEachTarget,
    SelectFunctions::read,          SelectFunctions::write,         SelectFunctions::assign,
    SelectFunctions::compare};

}  // namespace qor::fc
