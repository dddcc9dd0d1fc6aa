#include "Fc/Resource/Measure/FcSimpleValue.h"

#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc::resource::measure {

std::unique_ptr<unit::QuantityPresentationBase> FcSimpleValue::createQuantityPresentation() const {
  const std::optional<double> number = valueAsDoubleGet();
  return number ? createNumberPresentation(*number) : nullptr;
}

}  // namespace qor::fc::resource::measure
