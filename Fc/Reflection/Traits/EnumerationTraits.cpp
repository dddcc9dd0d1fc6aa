#include "Fc/Reflection/Traits/EnumerationTraits.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace qor::fc {

namespace {

// An enumeration is one byte, which may be read and written as such whatever its class.
unsigned char& positionOf(void* m) { return *static_cast<unsigned char*>(m); }
unsigned char positionOf(const void* m) { return *static_cast<const unsigned char*>(m); }

const char* nameOf(const TypeOperations& type, const void* m) {
  return type.enumeration->names[positionOf(m)];
}

bool store(const TypeOperations& type, void* m, std::string_view name) {
  const auto position = type.enumeration->find(name);
  if (position) positionOf(m) = static_cast<unsigned char>(*position);
  return position.has_value();
}

std::optional<std::string> getAsString(const TypeOperations& type, const void* m) {
  return nameOf(type, m);
}

bool setFromString(const TypeOperations& type, void* m, const std::string& text) {
  return store(type, m, text.c_str());
}

LocalValue getLocalValue(const TypeOperations& type, const void* m) {
  return LocalValue(std::string(nameOf(type, m)));
}

bool setLocalValue(const TypeOperations& type, void* m, const LocalValue& v) {
  const auto* name = std::get_if<std::string>(&v.value);
  if (!name) return false;
  if (!store(type, m, name->c_str())) positionOf(m) = type.enumeration->lastPosition();
  return true;
}

void forEachEntity(const TypeOperations&, const void*, EntityCallback) {}

bool read(const TypeOperations& type, void* m, ValueSource& source) {
  if (source.next() != ValueSource::Kind::enumerator)
    return rejectNext(source, Rejection::wrongKind, type);
  const std::string_view name = source.takeEnumerator();
  if (store(type, m, name)) return true;
  source.rejected(Rejection::unknownEnumerator, name, type);
  return false;
}

void write(const TypeOperations& type, const void* m, ValueSink& sink) {
  sink.enumerator(nameOf(type, m));
}

void assign(const TypeOperations&, void* m, const void* source, FcCopySettings&) {
  positionOf(m) = positionOf(source);
}

std::weak_ordering compare(const TypeOperations&, const void* a, const void* b, PairCallback) {
  return positionOf(a) <=> positionOf(b);
}

}  // namespace

constinit const TypeFunctions enumerationFunctions = {
    getAsString,   setFromString, getLocalValue, setLocalValue, forEachEntity,
    forEachEntity, read,          write,         assign,        compare};

}  // namespace qor::fc
