#include "Fc/Resource/Quantity/FcPhysicalQuantity.h"

namespace qor::fc::resource::quantity {

std::unique_ptr<unit::QuantityPresentationBase> FcPhysicalQuantity::createQuantityPresentation()
    const {
  return nullptr;
}

}  // namespace qor::fc::resource::quantity
