#include "Fc/Resource/Material/FcMaterialProperties.h"

#include <algorithm>

#include "Fc/Resource/Property/FcProperty.h"

namespace qor::fc::resource::material {

bool FcMaterialProperties::deleteProperty(const std::string& name) {
  const auto found =
      std::find_if(Properties().begin(), Properties().end(),
                   [&name](const auto& property) { return property && property->Name() == name; });
  if (found == Properties().end()) return false;
  eraseProperties(std::shared_ptr(*found));
  return true;
}

void FcMaterialProperties::addProperty(std::shared_ptr<property::FcProperty> property) {
  insertProperties(std::move(property));
}

}  // namespace qor::fc::resource::material
