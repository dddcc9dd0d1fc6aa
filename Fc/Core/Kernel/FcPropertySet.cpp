#include "Fc/Core/Kernel/FcPropertySet.h"

#include <algorithm>

#include "Fc/Data.h"
#include "Fc/Resource/Property/FcComplexProperty.h"
#include "Fc/Resource/Property/FcProperty.h"

namespace qor::fc::core::kernel {

using resource::property::FcProperty;

void FcPropertySet::deleteAllProperties(Data& data) {
  const auto properties = HasProperties();
  setHasProperties({});
  for (const std::shared_ptr<FcProperty>& property : properties)
    if (property && !property->PartOfPset().lockFirst() && !property->PartOfComplex().lockFirst())
      data.entityDelete(property);
}

std::shared_ptr<FcBase> FcPropertySet::getPropertyAsFcBase(std::string_view name) const {
  for (const std::shared_ptr<FcProperty>& property : HasProperties())
    if (property && property->Name() == name) return property;
  return nullptr;
}

bool FcPropertySet::deleteProperty(const std::string& name) {
  const auto found = std::static_pointer_cast<FcProperty>(getPropertyAsFcBase(name));
  if (!found) return false;
  eraseHasProperties(found);
  return true;
}

void FcPropertySet::addProperty(std::shared_ptr<FcProperty> property) {
  insertHasProperties(std::move(property));
}

}  // namespace qor::fc::core::kernel
