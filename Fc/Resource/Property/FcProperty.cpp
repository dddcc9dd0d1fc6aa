#include "Fc/Resource/Property/FcProperty.h"

#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc::resource::property {

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
