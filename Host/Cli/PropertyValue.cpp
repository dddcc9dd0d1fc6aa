#include "Host/Cli/PropertyValue.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "Fc/Resource/Measure/FcMeasureValue.h"
#include "Fc/Resource/Measure/FcUnit.h"
#include "Fc/Resource/Measure/FcValue.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"
#include "Fc/Resource/Property/FcPropertyBoundedValue.h"
#include "Fc/Resource/Property/FcPropertyEnumeratedValue.h"
#include "Fc/Resource/Property/FcPropertyListValue.h"
#include "Fc/Resource/Property/FcPropertyReferenceValue.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Property/FcPropertyTableValue.h"
#include "Fc/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/UnitWords.h"
#include "Host/StepFile/Units/Measures.h"
#include "Host/StepFile/Units/UnitSizes.h"

namespace qor::host::cli {

using namespace fc::resource::measure;
using namespace fc::resource::property;
using fc::resource::quantity::FcPhysicalSimpleQuantity;

namespace {

std::string upperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return upper;
}

/// "m^2 kg s^-3"
std::string siSymbol(const step::Dimensions& dimensions) {
  constexpr const char* symbols[] = {"m", "kg", "s", "A", "K", "mol", "cd"};
  std::string text;
  const auto exponents = step::exponentsOf(dimensions);
  for (std::size_t i = 0; i < exponents.size(); ++i) {
    const int exponent = exponents[i];
    if (exponent == 0) continue;
    text += fmt::format("{}{}", text.empty() ? "" : " ", symbols[i]);
    if (exponent != 1) text += fmt::format("^{}", exponent);
  }
  return text;
}

/// An SI number of that type, "IfcLengthMeasure".
std::string siText(double number, std::string_view type) {
  if (const auto* quantity = quantityOfMeasure(type.substr(3)))
    return quantity->createPresentation(number)->toString();
  const step::MeasureId id = step::measureOfType(upperCase(type));
  const auto& dimensions = step::measures()[id].dimensions;
  const std::string symbol = dimensions ? siSymbol(*dimensions) : std::string();
  return fmt::format("{}{}{}", number, symbol.empty() ? "" : " ", symbol);
}

/// A unit beside a value that isn't the SI's: the value is no measure, or the unit has no size.
bool isOther(const FcUnit& unit, std::string_view type) {
  if (!unit.isSet()) return false;
  step::UnitSizes sizes([](const fc::FcBase&, std::string_view, const std::string&) {});
  const auto size = sizes.of(unit.getEntity());
  return !size || !size->toSi.isIdentity() ||
         step::measureOfType(upperCase(type)) == step::measure::none;
}

std::string numberText(double number, std::string_view type, const FcUnit& unit) {
  if (isOther(unit, type)) return fmt::format("{} {}", number, printable(unitWords(unit)));
  return type.ends_with("Measure") ? siText(number, type) : fmt::format("{}", number);
}

std::string valueText(const FcValue& value, const FcUnit& unit) {
  if (!value.isSet()) return "-";
  const fc::LocalValue local = value.getLocalValue();
  if (const auto* number = std::get_if<double>(&local.value))
    return numberText(*number, local.typeName.value_or(""), unit);
  if (const auto* text = std::get_if<std::string>(&local.value))
    return text->empty() ? "''" : printable(*text);
  if (const auto* logical = std::get_if<LogicalValue>(&local.value);
      logical && *logical == LogicalValue::Unknown)
    return "unknown";
  return printable(value.getAsString(false).value_or("?"));
}

std::string listText(const std::optional<std::vector<FcValue>>& values, const FcUnit& unit) {
  if (!values || values->empty()) return "-";
  std::string text;
  for (const FcValue& value : *values) text += (text.empty() ? "" : ", ") + valueText(value, unit);
  return text;
}

std::string boundsText(const FcPropertyBoundedValue& property) {
  const FcValue& lower = property.LowerBoundValue();
  const FcValue& upper = property.UpperBoundValue();
  const FcUnit& unit = property.Unit();
  const std::string bounds = lower.isSet() && upper.isSet()
                                 ? valueText(lower, unit) + " \u2013 " + valueText(upper, unit)
                             : lower.isSet() ? "from " + valueText(lower, unit)
                             : upper.isSet() ? "up to " + valueText(upper, unit)
                                             : "";
  if (!property.SetPointValue().isSet()) return bounds.empty() ? "-" : bounds;
  const std::string point = valueText(property.SetPointValue(), unit);
  return bounds.empty() ? point : fmt::format("{} ({})", bounds, point);
}

std::string tableText(const FcPropertyTableValue& property) {
  const std::vector<FcValue> defining = property.DefiningValues().value_or(std::vector<FcValue>());
  const std::vector<FcValue> defined = property.DefinedValues().value_or(std::vector<FcValue>());
  std::string text;
  for (std::size_t i = 0; i < std::max(defining.size(), defined.size()); ++i) {
    const auto at = [i](const std::vector<FcValue>& values, const FcUnit& unit) {
      return i < values.size() ? valueText(values[i], unit) : "-";
    };
    text += fmt::format("{}{}: {}", text.empty() ? "" : ", ", at(defining, property.DefiningUnit()),
                        at(defined, property.DefinedUnit()));
  }
  return text.empty() ? "-" : text;
}

/// The attribute of a quantity that holds its number: the first that its own class declares.
std::string quantityText(const FcPhysicalSimpleQuantity& quantity) {
  const fc::AttributeInfo& attribute = quantity.classInfo().attributes.front();
  const fc::LocalValue value = attribute.type->getLocalValue(attribute.of(quantity));
  const FcUnit unit = quantity.Unit() ? FcUnit(quantity.Unit()) : FcUnit();
  if (const auto* number = std::get_if<double>(&value.value))
    return numberText(*number, attribute.typeName, unit);
  const auto* count = std::get_if<std::int64_t>(&value.value);
  return count ? numberText(static_cast<double>(*count), "", unit) : "-";
}

constexpr std::array valueAttributes{
    std::string_view("NominalValue"),     std::string_view("LowerBoundValue"),
    std::string_view("UpperBoundValue"),  std::string_view("SetPointValue"),
    std::string_view("ListValues"),       std::string_view("EnumerationValues"),
    std::string_view("DefiningValues"),   std::string_view("DefinedValues"),
    std::string_view("PropertyReference")};

}  // namespace

std::string propertyText(const fc::FcBase& property, const NumberOf& numberOf) {
  if (const auto* single = fc::fcCast<FcPropertySingleValue>(&property))
    return valueText(single->NominalValue(), single->Unit());
  if (const auto* quantity = fc::fcCast<FcPhysicalSimpleQuantity>(&property))
    return quantityText(*quantity);
  if (const auto* enumerated = fc::fcCast<FcPropertyEnumeratedValue>(&property))
    return listText(enumerated->EnumerationValues(), {});
  if (const auto* list = fc::fcCast<FcPropertyListValue>(&property))
    return listText(list->ListValues(), list->Unit());
  if (const auto* bounded = fc::fcCast<FcPropertyBoundedValue>(&property))
    return boundsText(*bounded);
  if (const auto* table = fc::fcCast<FcPropertyTableValue>(&property)) return tableText(*table);
  if (const auto* reference = fc::fcCast<FcPropertyReferenceValue>(&property)) {
    const fc::FcBase* entity = reference->PropertyReference().getEntity();
    return entity ? label(*entity, numberOf(*entity)) : "-";
  }
  return {};
}

nlohmann::ordered_json propertyJson(const fc::FcBase& property, const NumberOf& numberOf) {
  auto json = nlohmann::ordered_json::object();
  const bool isQuantity = fc::fcCast<FcPhysicalSimpleQuantity>(&property) != nullptr;
  const fc::AttributeInfo* number = isQuantity ? &property.classInfo().attributes.front() : nullptr;
  property.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    const bool holdsValue =
        &attribute == number || std::find(valueAttributes.begin(), valueAttributes.end(),
                                          attribute.name) != valueAttributes.end();
    if (!holdsValue) return;
    const fc::LocalValue value = attribute.type->getLocalValue(attribute.of(property));
    if (!value.isEmpty()) json[std::string(attribute.name)] = valueJson(value, numberOf);
  });
  return json;
}

}  // namespace qor::host::cli
