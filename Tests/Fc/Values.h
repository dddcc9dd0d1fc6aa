#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"

namespace qor::fc {

namespace details {
inline void PrintTo(const LocalValue& value, std::ostream* out) {
  *out << "alternative " << value.index() << " of type " << value.typeName.value_or("(none)");
}
}  // namespace details

namespace test {

/// A new instance by the mixed-case name of its class, "IfcWall".
inline std::shared_ptr<FcBase> make(const std::string& ifcName) {
  return Factory::objectFromIfcName(StringHash::of(ifcName));
}

inline object::PropertyId id(const char* name) { return object::PropertyId(name); }

inline LocalValue empty() { return LocalValue(details::EmptyValue()); }
inline LocalValue integer(std::int64_t value) { return LocalValue(value); }
inline LocalValue real(double value) { return LocalValue(value); }
inline LocalValue text(std::string value) { return LocalValue(std::move(value)); }
inline LocalValue entity(std::shared_ptr<FcBase> value) { return LocalValue(std::move(value)); }
inline LocalValue list(std::vector<LocalValue> values) { return LocalValue(std::move(values)); }
inline LocalValue typed(const char* typeName, LocalValue value) {
  value.typeName = typeName;
  return value;
}

inline std::optional<std::string> some(const char* text) {
  return text ? std::optional<std::string>(text) : std::nullopt;
}

}  // namespace test
}  // namespace qor::fc
