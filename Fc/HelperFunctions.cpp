#include "Fc/HelperFunctions.h"

#include <charconv>
#include <string_view>

#include "Qor/Assert/Report.h"

namespace qor::fc {

namespace {

// What std::stod and std::stol pass over in front of a number.
std::string_view numberOf(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
  text.remove_prefix(first == std::string_view::npos ? text.size() : first);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

}  // namespace

std::string textFromReal(double value) {
  char buffer[352];  // 309 digits before the point, 6 behind it, sign and point
  const auto [end, error] =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 6);
  return {buffer, end};
}

bool realFromText(const std::string& text, double& out) {
  const std::string_view number = numberOf(text);
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc()) return false;
  out = value;
  return true;
}

bool integerFromText(const std::string& text, std::int64_t& out) {
  const std::string_view number = numberOf(text);
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc()) return false;
  out = value;
  return true;
}

bool booleanFromText(const std::string& text, bool& out) {
  if (text != "true" && text != "false") return false;
  out = text == "true";
  return true;
}

std::optional<std::string> textFromLogical(LogicalValue value) {
  switch (value) {
    case LogicalValue::False:
      return "false";
    case LogicalValue::True:
      return "true";
    case LogicalValue::Unknown:
      return "unknown";
  }
  report({.message = "Not implemented for this enum type",
          .function = "qor::fc::BaseType<enum qor::LogicalValue>::getAsString",
          .source = "BaseType"});
  return std::nullopt;
}

bool logicalFromText(const std::string& text, LogicalValue& out) {
  if (text == "true")
    out = LogicalValue::True;
  else if (text == "false")
    out = LogicalValue::False;
  else if (text == "unknown")
    out = LogicalValue::Unknown;
  else
    return false;
  return true;
}

std::optional<std::string> getMemberAsStringObject() {
  report("Not implemented");
  return std::nullopt;
}

bool setMemberFromStringObject() {
  report("Not implemented");
  return false;
}

bool setMemberFromStringPrimitive() {
  report("Not implemented");
  return false;
}

}  // namespace qor::fc
