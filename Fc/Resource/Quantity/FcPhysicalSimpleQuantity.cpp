#include "Fc/Resource/Quantity/FcPhysicalSimpleQuantity.h"

namespace qor::fc::resource::quantity {

std::unique_ptr<unit::QuantityPresentationBase>
FcPhysicalSimpleQuantity::createQuantityPresentation() const {
  // Each class below begins with its value: AreaValue, LengthValue.
  return createQuantityPresentationLocal(classInfo().attributes.front().id());
}

}  // namespace qor::fc::resource::quantity
