#include "Fc/Resource/Measure/FcDerivedMeasureValue.h"

#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc::resource::measure {

std::unique_ptr<unit::QuantityPresentationBase> FcDerivedMeasureValue::createQuantityPresentation()
    const {
  return createMeasurePresentation(nameFromEnum(type()), valueAsDoubleGet().value_or(0));
}

}  // namespace qor::fc::resource::measure
