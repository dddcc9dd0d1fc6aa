#include "Fc/Resource/Quantity/FcQuantityNumber.h"

#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc::resource::quantity {

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityNumber::createQuantityPresentation()
    const {
  return measure::createNumberPresentation(NumberValue());
}

}  // namespace qor::fc::resource::quantity
