#include "Fc/Resource/Property/FcPropertyBoundedValue.h"

#include <cmath>

#include "Fc/Model/Localize.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::property {

using measure::FcValue;

namespace {

/// A plain number for a measure without a unit; null for what is no number.
std::unique_ptr<unit::QuantityPresentationBase> presentationOf(
    const FcPropertyBoundedValue& property, const std::string& attribute, const FcValue& value,
    const std::optional<std::string>& unitOverride) {
  if (auto known = property.createQuantityPresentationFor(attribute, value, unitOverride))
    return known;
  const std::optional<double> number = value.valueAsDoubleGet();
  return number ? measure::createNumberPresentation(*number) : nullptr;
}

bool isNotNegative(double number) {
  return number > 0 || std::abs(number) <= math::Epsilon::current().general;
}

}  // namespace

std::string FcPropertyBoundedValue::getAsOneLineString(
    const std::optional<std::string>& unitOverride) const {
  const auto text = [&](const char* attribute, const FcValue& value, bool beginsRange = false) {
    const auto presentation = presentationOf(*this, attribute, value, unitOverride);
    if (!presentation) return value.getAsString(false).value_or("");
    return presentation->toString(!beginsRange || !isNotNegative(presentation->number()));
  };
  const bool hasLower = m_LowerBoundValue.isSet();
  const bool hasUpper = m_UpperBoundValue.isSet();
  const bool hasSetPoint = m_SetPointValue.isSet();
  if (hasLower && hasUpper) {
    std::string range = text("LowerBoundValue", m_LowerBoundValue, true) + " – " +
                        text("UpperBoundValue", m_UpperBoundValue);
    if (hasSetPoint) range += " (" + text("SetPointValue", m_SetPointValue) + ")";
    return range;
  }
  if (hasSetPoint) return text("SetPointValue", m_SetPointValue);
  if (hasLower)
    return localize("BoundedValue_Min") + " " + text("LowerBoundValue", m_LowerBoundValue);
  if (hasUpper)
    return localize("BoundedValue_Max") + " " + text("UpperBoundValue", m_UpperBoundValue);
  return {};
}

}  // namespace qor::fc::resource::property
