// What properties know of the sets that hold them.

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Data.h"
#include "Fc/Resource/Property/FcComplexProperty.h"
#include "Fc/Resource/Property/FcProperty.h"

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

}  // namespace qor::fc::resource::property
