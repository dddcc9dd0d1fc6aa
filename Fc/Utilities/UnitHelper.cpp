#include "Fc/Utilities/UnitHelper.h"

#include "Fc/Resource/Measure/FcValue.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc::helper {

using namespace resource::measure;
using Presentation = std::unique_ptr<unit::QuantityPresentationBase>;

Presentation createQuantityPresentationFromValue(double value, FcMeasureValue::Types type) {
  return createMeasurePresentation(FcMeasureValue::nameFromEnum(type), value);
}

Presentation createQuantityPresentationFromValue(double value, FcDerivedMeasureValue::Types type) {
  return createMeasurePresentation(FcDerivedMeasureValue::nameFromEnum(type), value);
}

std::optional<std::string> appendUnit(double value, const std::string& typeName) {
  FcValue typed;
  if (!typed.setTypeFromString(typeName) || typed.type() == FcValue::Types::SimpleValue)
    return std::nullopt;
  const Presentation presentation = createMeasurePresentation(typeName, value);
  return presentation ? std::optional(presentation->toString()) : std::nullopt;
}

}  // namespace qor::fc::helper
