#include "Fc/Resource/Measure/FcMeasureValue.h"

#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc::resource::measure {

std::optional<double> FcMeasureValue::valueAsDoubleGet(bool integerCounts) const {
  return integerCounts || type() != Types::CountMeasure ? number() : std::nullopt;
}

std::unique_ptr<unit::QuantityPresentationBase> FcMeasureValue::createQuantityPresentation() const {
  return createMeasurePresentation(nameFromEnum(type()), valueAsDoubleGet(true).value_or(0));
}

}  // namespace qor::fc::resource::measure
