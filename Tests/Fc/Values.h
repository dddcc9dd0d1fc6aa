#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Tests/Support/Make.h"

namespace qor::test {

/// A new instance by the mixed-case name of its class, "IfcWall".
inline std::shared_ptr<fc::FcBase> make(const std::string& ifcName) {
  return fc::Factory::objectFromIfcName(StringHash::of(ifcName));
}

inline object::PropertyId id(const char* name) { return object::PropertyId(name); }

inline fc::LocalValue empty() { return fc::LocalValue(fc::details::EmptyValue()); }
inline fc::LocalValue integer(std::int64_t value) { return fc::LocalValue(value); }
inline fc::LocalValue real(double value) { return fc::LocalValue(value); }
inline fc::LocalValue text(std::string value) { return fc::LocalValue(std::move(value)); }
inline fc::LocalValue entity(std::shared_ptr<fc::FcBase> value) {
  return fc::LocalValue(std::move(value));
}
inline fc::LocalValue list(std::vector<fc::LocalValue> values) {
  return fc::LocalValue(std::move(values));
}
inline fc::LocalValue typed(const char* typeName, fc::LocalValue value) {
  value.typeName = typeName;
  return value;
}

inline std::optional<std::string> some(const char* text) {
  return text ? std::optional<std::string>(text) : std::nullopt;
}

}  // namespace qor::test
