#include "Fc/Resource/Measure/FcValue.h"

#include "Fc/Model/Report.h"

namespace qor::fc::resource::measure {

using object::PropertyValue;

namespace {}  // namespace

std::optional<double> FcValue::valueAsDoubleGet() const {
  return type() == Types::SimpleValue ? SimpleValue().valueAsDoubleGet() : number();
}

bool FcValue::setDoubleValue(double value) {
  const bool isSimple = type() == Types::SimpleValue;
  if (isSimple && SimpleValue().type() != FcSimpleValue::Types::Real) return false;
  return setNumber(value);
}

bool FcValue::hasQuantityPresentation() const {
  return type() == Types::SimpleValue ? SimpleValue().type() == FcSimpleValue::Types::Real
                                      : isSet();
}

std::unique_ptr<unit::QuantityPresentationBase> FcValue::createQuantityPresentation() const {
  switch (type()) {
    case Types::DerivedMeasureValue:
      return DerivedMeasureValue().createQuantityPresentation();
    case Types::MeasureValue:
      return MeasureValue().createQuantityPresentation();
    case Types::SimpleValue:
      return SimpleValue().createQuantityPresentation();
    case Types::NotSet:
      break;
  }
  return nullptr;
}

PropertyValue FcValue::getAsPropertyValue() const {
  if (const auto number = valueAsDoubleGet()) return *number;
  if (isBoolean()) return SimpleValue().Boolean().value();
  if (!isSet()) return {};
  const std::optional<std::string> text = getAsString(false);
  return text ? PropertyValue(*text) : PropertyValue();
}

void FcValue::updateValueFromPropertyValue(const PropertyValue& value) {
  if (!isSet()) {
    report(
        "FcValue::updateValueFromPropertyValue can only be used if the Value alredy has a value.");
  } else if (value.getType() == PropertyValue::Type::Double) {
    setDoubleValue(value.getDouble());
  } else if (isBoolean()) {
    if (value.getType() == PropertyValue::Type::Bool)
      *this = FcSimpleValue(FcBoolean(value.getBool()));
    else
      report("Unexpected type, expected a boolean.");
  } else if (value.getType() == PropertyValue::Type::Text) {
    setValueOnTypeFromString(value.getText());
  } else {
    report("Unexpected type");
  }
}

bool FcValue::isBoolean() const {
  return type() == Types::SimpleValue && SimpleValue().type() == FcSimpleValue::Types::Boolean;
}

}  // namespace qor::fc::resource::measure
