#include "Host/Cli/AttributeValue.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>

#include "Fc/FcBase.h"
#include "Fc/HelperFunctions.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/StepFile/EntityNumbers.h"

namespace qor::host::cli {

namespace {

using fc::LocalValue;
using Json = nlohmann::ordered_json;
using EntityPointer = std::shared_ptr<fc::FcBase>;

std::string hexadecimal(const LocalValue::Bytes& bytes) {
  return fmt::format("{:02X}", fmt::join(bytes, ""));
}

std::string upper(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](char c) { return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c; });
  return text;
}

const EntityPointer* entityOf(const LocalValue& value) {
  return std::get_if<EntityPointer>(&value.value);
}

bool hasEntities(const LocalValue::List& list) {
  return std::ranges::any_of(list, [](const LocalValue& v) { return entityOf(v) != nullptr; });
}

/// The text form of each alternative of a value.
class TextMaker {
 public:
  TextMaker(const NumberOf& numberOf, const std::string& indent, bool enumeration)
      : m_numberOf(numberOf), m_indent(indent), m_enumeration(enumeration) {}

  std::string make(const LocalValue& value) const {
    std::string text = std::visit(*this, value.value);
    return value.typeName ? fmt::format("{}({})", upper(*value.typeName), text) : text;
  }

  std::string operator()(fc::details::NoAttribute) const { return "$"; }
  std::string operator()(fc::details::EmptyValue) const { return "$"; }
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  std::string operator()(double value) const { return fmt::format("{}", value); }
  std::string operator()(std::int64_t value) const { return fmt::format("{}", value); }
  std::string operator()(const std::string& value) const {
    return m_enumeration ? value : inQuotes(value);
  }
  std::string operator()(LogicalValue value) const {
    return fc::textFromLogical(value).value_or("unknown");
  }
  std::string operator()(const LocalValue::Bytes& value) const {
    return '"' + hexadecimal(value) + '"';
  }
  std::string operator()(const Guid& value) const { return value.toString(false); }
  std::string operator()(const EntityPointer& value) const {
    return value ? label(*value, m_numberOf(*value)) : "$";
  }
  template <class T, std::size_t N>
  std::string operator()(const std::array<T, N>& value) const {
    return fmt::format("({})", fmt::join(value, ", "));
  }
  std::string operator()(const LocalValue::List& list) const {
    const bool lines = hasEntities(list);
    std::string text = lines ? "" : "(";
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (lines)
        text += "\n" + m_indent;
      else if (i > 0)
        text += ", ";
      text += make(list[i]);
    }
    return lines ? text : text + ")";
  }

 private:
  const NumberOf& m_numberOf;
  const std::string& m_indent;
  bool m_enumeration;
};

class JsonMaker {
 public:
  explicit JsonMaker(const NumberOf& numberOf) : m_numberOf(numberOf) {}

  Json make(const LocalValue& value) const {
    Json json = std::visit(*this, value.value);
    return value.typeName ? Json{{"type", upper(*value.typeName)}, {"value", std::move(json)}}
                          : json;
  }

  Json operator()(fc::details::NoAttribute) const { return nullptr; }
  Json operator()(fc::details::EmptyValue) const { return nullptr; }
  Json operator()(LogicalValue value) const {
    if (value == LogicalValue::True) return true;
    if (value == LogicalValue::False) return false;
    return "unknown";
  }
  Json operator()(const LocalValue::Bytes& value) const { return hexadecimal(value); }
  Json operator()(const Guid& value) const { return value.toString(false); }
  Json operator()(const EntityPointer& value) const {
    return value ? jsonLabel(*value, m_numberOf(*value)) : Json();
  }
  Json operator()(const LocalValue::List& list) const {
    Json json = Json::array();
    for (const LocalValue& element : list) json.push_back(make(element));
    return json;
  }
  template <class T>
  Json operator()(const T& value) const {
    return value;
  }

 private:
  const NumberOf& m_numberOf;
};

}  // namespace

NumberOf numbersOf(const step::ReadResult& model) {
  const auto numbers = std::make_shared<step::EntityNumbers>(*model.data, model.instances);
  return [numbers](const fc::FcBase& entity) { return numbers->numberOf(entity); };
}

fc::LocalValue valueOf(const fc::FcBase& entity, const fc::AttributeInfo& attribute,
                       const NumberOf& numberOf) {
  LocalValue value = attribute.type->getLocalValue(attribute.of(entity));
  auto* list = std::get_if<LocalValue::List>(&value.value);
  if (attribute.isInverse() && list)
    std::ranges::sort(*list, {}, [&](const LocalValue& v) { return numberOf(**entityOf(v)); });
  return value;
}

std::string valueText(const LocalValue& value, const fc::AttributeInfo& attribute,
                      const NumberOf& numberOf, const std::string& indent) {
  return TextMaker(numberOf, indent, attribute.type->enumeration != nullptr).make(value);
}

Json valueJson(const LocalValue& value, const NumberOf& numberOf) {
  return JsonMaker(numberOf).make(value);
}

}  // namespace qor::host::cli
