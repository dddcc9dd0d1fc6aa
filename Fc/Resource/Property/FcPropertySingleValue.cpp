#include "Fc/Resource/Property/FcPropertySingleValue.h"

#include "Fc/HelperFunctions.h"
#include "Fc/Model/Report.h"

namespace qor::fc::resource::property {

using measure::FcValue;
using object::PropertyValue;

namespace {

std::optional<double> numberOf(const PropertyValue& value) {
  switch (value.getType()) {
    case PropertyValue::Type::Double:
      return value.getDouble();
    case PropertyValue::Type::Float:
      return value.getFloat();
    default:
      return std::nullopt;
  }
}

std::string textOf(bool value) { return value ? "true" : "false"; }

std::optional<std::string> textOf(const PropertyValue& value) {
  switch (value.getType()) {
    case PropertyValue::Type::Empty:
      return std::nullopt;
    case PropertyValue::Type::Text:
      return value.getText();
    case PropertyValue::Type::OptionalText:
      return value.getOptionalText();
    case PropertyValue::Type::Double:
      return textFromReal(value.getDouble());
    case PropertyValue::Type::Float:
      return textFromReal(value.getFloat());
    case PropertyValue::Type::Int32:
      return std::to_string(value.getInt32());
    case PropertyValue::Type::UInt32:
      return std::to_string(value.getUInt32());
    case PropertyValue::Type::Int64:
      return std::to_string(value.getInt64());
    case PropertyValue::Type::UInt64:
      return std::to_string(value.getUInt64());
    case PropertyValue::Type::Bool:
      return textOf(value.getBool());
    case PropertyValue::Type::OptionalBool: {
      const std::optional<bool> flag = value.getOptionalBool();
      return flag ? std::optional(textOf(*flag)) : std::nullopt;
    }
  }
  return std::nullopt;
}

}  // namespace

bool FcPropertySingleValue::setFromPropertyValue(const PropertyValue& value) {
  const bool isMeasure = m_NominalValue.type() == FcValue::Types::MeasureValue ||
                         m_NominalValue.type() == FcValue::Types::DerivedMeasureValue;
  if (const auto number = numberOf(value); number && isMeasure) {
    m_NominalValue.setDoubleValue(*number);
    return true;
  }
  const std::optional<std::string> text = textOf(value);
  if (!text) return false;
  if (m_NominalValue.setValueOnTypeFromString(*text)) return true;
  report(*this, "Unable to set attribute \"" + Name() + "\", from string \"" + *text + "\".");
  return false;
}

}  // namespace qor::fc::resource::property
