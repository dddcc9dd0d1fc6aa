#include "Fc/Utilities/Merge.h"

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Data.h"
#include "Fc/FcCopySettings.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Property/FcProperty.h"
#include "Fc/Resource/Quantity/FcPhysicalQuantity.h"

namespace qor::fc::utilities {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using core::productextension::FcElementQuantity;
using resource::property::FcProperty;
using resource::quantity::FcPhysicalQuantity;

namespace {

void mergeProperties(FcObjectDefinition& target, const FcObjectDefinition& source, Data& data,
                     FcCopySettings& settings) {
  for (const auto& from : source.getPropertySetDefinitions<FcPropertySet>()) {
    if (!from->Name()) continue;
    const auto to = target.getOrCreatePropertySetDefinition<FcPropertySet>(data, *from->Name());
    if (!to || to == from) continue;
    for (const std::shared_ptr<FcProperty>& property : from->HasProperties()) {
      if (!property) continue;
      to->deleteProperty(property->Name());
      to->addProperty(std::static_pointer_cast<FcProperty>(property->deepCopy(settings)));
    }
  }
}

void mergeQuantities(FcObjectDefinition& target, const FcObjectDefinition& source, Data& data,
                     FcCopySettings& settings) {
  for (const auto& from : source.getPropertySetDefinitions<FcElementQuantity>()) {
    if (!from->Name()) continue;
    const auto to = target.getOrCreatePropertySetDefinition<FcElementQuantity>(data, *from->Name());
    if (!to || to == from) continue;
    for (const std::shared_ptr<FcPhysicalQuantity>& quantity : from->Quantities())
      if (quantity)
        to->insertQuantities(
            std::static_pointer_cast<FcPhysicalQuantity>(quantity->deepCopy(settings)));
  }
}

std::string textOf(const FcObjectDefinition& object, const char* attribute) {
  return object.getAttributeAsString(attribute).value_or("");
}

}  // namespace

void merge(FcObjectDefinition& target, const FcObjectDefinition& source) {
  const std::shared_ptr<Data> data = target.data();
  if (data) {
    FcCopySettings settings;
    settings.target = data;
    mergeProperties(target, source, *data, settings);
    mergeQuantities(target, source, *data, settings);
  } else
    report("Cannot merge property sets without FcData");
  for (const char* attribute : {"Name", "Description", "ObjectType", "Tag", "PredefinedType"}) {
    const std::string text = textOf(source, attribute);
    if (!text.empty() && textOf(target, attribute).empty())
      target.setAttributeFromString(attribute, text);
  }
}

}  // namespace qor::fc::utilities
