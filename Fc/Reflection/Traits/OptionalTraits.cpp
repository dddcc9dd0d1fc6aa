#include "Fc/Reflection/Traits/OptionalTraits.h"

#include <string>

#include "Fc/Reflection/EnumInfo.h"

namespace qor::fc {

namespace {

using Access = OptionalOperations::Access;

const TypeOperations& elementOf(const TypeOperations& type) {
  return *static_cast<const OptionalOperations&>(type).element;
}

void* look(const TypeOperations& type, void* m) {
  return static_cast<const OptionalOperations&>(type).value(m, Access::look);
}

const void* look(const TypeOperations& type, const void* m) {
  return look(type, const_cast<void*>(m));
}

void* engage(const TypeOperations& type, void* m) {
  return static_cast<const OptionalOperations&>(type).value(m, Access::engage);
}

void clear(const TypeOperations& type, void* m) {
  static_cast<const OptionalOperations&>(type).value(m, Access::clear);
}

std::optional<std::string> getAsString(const TypeOperations& type, const void* m) {
  const void* value = look(type, m);
  return value ? elementOf(type).getAsString(value) : std::nullopt;
}

bool setFromString(const TypeOperations& type, void* m, const std::string& text) {
  void* value = look(type, m);
  if (!value) {
    value = engage(type, m);
    if (type.family == TypeFamily::enumeration)
      *static_cast<unsigned char*>(value) = type.enumeration->lastPosition();
  }
  return elementOf(type).setFromString(value, text);
}

LocalValue getLocalValue(const TypeOperations& type, const void* m) {
  const void* value = look(type, m);
  return value ? elementOf(type).getLocalValue(value) : LocalValue(details::EmptyValue());
}

bool setLocalValue(const TypeOperations& type, void* m, const LocalValue& v) {
  if (v.isEmpty()) {
    clear(type, m);
    return true;
  }
  if (void* value = look(type, m)) return elementOf(type).setLocalValue(value, v);
  const bool stored = elementOf(type).setLocalValue(engage(type, m), v);
  if (!stored) clear(type, m);
  return stored;
}

void forEachEntity(const TypeOperations& type, const void* m, EntityCallback callback) {
  if (const void* value = look(type, m)) elementOf(type).forEachEntity(value, callback);
}

void forEachTarget(const TypeOperations& type, const void* m, EntityCallback callback) {
  if (const void* value = look(type, m)) elementOf(type).forEachTarget(value, callback);
}

bool read(const TypeOperations& type, void* m, ValueSource& source) {
  clear(type, m);
  if (skipNull(source)) return true;
  const bool stored = elementOf(type).read(engage(type, m), source);
  if (!stored) clear(type, m);
  return stored;
}

void write(const TypeOperations& type, const void* m, ValueSink& sink) {
  if (const void* value = look(type, m))
    elementOf(type).write(value, sink);
  else
    sink.null();
}

void assign(const TypeOperations& type, void* m, const void* source, FcCopySettings& settings) {
  clear(type, m);
  if (const void* value = look(type, source))
    elementOf(type).assign(engage(type, m), value, settings);
}

std::weak_ordering compare(const TypeOperations& type, const void* a, const void* b,
                           PairCallback defer) {
  const void* valueA = look(type, a);
  const void* valueB = look(type, b);
  if (valueA && valueB) return elementOf(type).compare(valueA, valueB, defer);
  return (valueA != nullptr) <=> (valueB != nullptr);
}

}  // namespace

constinit const TypeFunctions optionalFunctions = {
    getAsString,   setFromString, getLocalValue, setLocalValue, forEachEntity,
    forEachTarget, read,          write,         assign,        compare};

}  // namespace qor::fc
