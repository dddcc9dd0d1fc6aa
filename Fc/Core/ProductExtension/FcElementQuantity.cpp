#include "Fc/Core/ProductExtension/FcElementQuantity.h"

#include "Fc/Data.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"
#include "Fc/Resource/Quantity/FcPhysicalQuantity.h"

namespace qor::fc::core::productextension {

void FcElementQuantity::deleteAllProperties(Data& data) {
  for (const auto& quantity : Quantities()) data.entityDelete(quantity);
  setQuantities({});
}

std::shared_ptr<FcBase> FcElementQuantity::getPropertyAsFcBase(std::string_view name) const {
  for (const auto& quantity : Quantities())
    if (quantity && quantity->Name() == name) return quantity;
  return nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase> FcElementQuantity::createQuantityPresentationFor(
    const resource::quantity::FcPhysicalQuantity& quantity) const {
  return resource::measure::withSettingsOfProperty(quantity.createQuantityPresentation(),
                                                   Name().value_or(""), quantity.Name());
}

}  // namespace qor::fc::core::productextension
