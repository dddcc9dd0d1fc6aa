#include "Fc/Resource/Property/FcProperty.h"

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Data.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"
#include "Fc/Resource/Property/FcComplexProperty.h"

namespace qor::fc::resource::property {

void FcProperty::deleteProperty(Data& data, bool deleteEmptySets) {
  const auto self = std::static_pointer_cast<FcProperty>(shared_from_this());
  for (const auto& set : PartOfPset().lock()) {
    set->eraseHasProperties(self);
    if (deleteEmptySets && set->HasProperties().empty()) set->deletePset(data);
  }
  for (const auto& complex : PartOfComplex().lock()) complex->eraseHasProperties(self);
  data.entityDelete(self);
}

std::optional<std::string> FcProperty::getPropertySetName() const {
  const auto set = PartOfPset().lockFirst();
  return set ? set->Name() : std::nullopt;
}

std::unique_ptr<unit::QuantityPresentationBase> FcProperty::createQuantityPresentationFor(
    const std::string& attribute, const measure::FcValue& value,
    const std::optional<std::string>& unitOverride) const {
  const std::string set = getPropertySetName().value_or("");
  auto presentation =
      measure::withSettingsOfProperty(value.createQuantityPresentation(), set, Name());
  // One attribute alone may be shown in its own way.
  presentation =
      measure::withSettingsOfProperty(std::move(presentation), set, Name() + "." + attribute);
  if (presentation && unitOverride) presentation->showIn(*unitOverride);
  return presentation;
}

}  // namespace qor::fc::resource::property
