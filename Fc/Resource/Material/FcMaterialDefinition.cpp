#include "Fc/Resource/Material/FcMaterialDefinition.h"

#include "Fc/Resource/Material/FcMaterialProperties.h"

namespace qor::fc::resource::material {

void FcMaterialDefinition::propertySetAdd(Data&, std::shared_ptr<FcMaterialProperties> set) {
  set->setMaterial(std::static_pointer_cast<FcMaterialDefinition>(shared_from_this()));
}

bool FcMaterialDefinition::deletePropertySet(Data& data, const std::string& name) {
  const auto set = getPropertySetNonConst(name);
  if (!set) return false;
  set->setMaterial(nullptr);
  data.entityDelete(set);
  return true;
}

std::shared_ptr<const FcMaterialProperties> FcMaterialDefinition::traversePropertySets(
    const std::function<bool(const FcMaterialProperties&)>& callback) const {
  for (const auto& set : HasProperties().lock())
    if (callback(*set)) return set;
  return nullptr;
}

std::shared_ptr<FcMaterialProperties> FcMaterialDefinition::traversePropertySets(
    const std::function<bool(const FcMaterialProperties&)>& callback) {
  return std::const_pointer_cast<FcMaterialProperties>(
      std::as_const(*this).traversePropertySets(callback));
}

}  // namespace qor::fc::resource::material
