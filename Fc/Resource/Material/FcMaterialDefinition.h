#pragma once

#include "Fc/Model/PropertiesInterface.h"
#include "Fc/Resource/Material/FcMaterialDefinitionAttributes.h"

namespace qor::fc::resource::material {

/// IfcMaterialDefinition, Resource.Material: a material or a build-up of materials, which has
/// property sets of its own kind.
class QOR_API FcMaterialDefinition : public FcMaterialDefinitionAttributes,
                                     public PropertiesInterface<FcMaterialProperties> {
 public:
  /// Takes the set over from the material that had it.
  void propertySetAdd(Data& data, std::shared_ptr<FcMaterialProperties> set) override;
  /// Also takes the set off the list of `data`, since none may be there without a material.
  bool deletePropertySet(Data& data, const std::string& name) override;
  std::shared_ptr<const FcMaterialProperties> traversePropertySets(
      const std::function<bool(const FcMaterialProperties&)>& callback) const override;
  std::shared_ptr<FcMaterialProperties> traversePropertySets(
      const std::function<bool(const FcMaterialProperties&)>& callback) override;

 protected:
  FcMaterialDefinition() = default;
};

}  // namespace qor::fc::resource::material
