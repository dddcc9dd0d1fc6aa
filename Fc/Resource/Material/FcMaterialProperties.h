#pragma once

#include "Fc/Model/PropertyInterface.h"
#include "Fc/Resource/Material/FcMaterialPropertiesAttributes.h"

namespace qor::fc::resource::material {

/// IfcMaterialProperties, Resource.Material: the property set of a material.
class QOR_API FcMaterialProperties : public FcMaterialPropertiesAttributes,
                                     public PropertyInterface<property::FcProperty> {
 public:
  bool deleteProperty(const std::string& name) override;
  void addProperty(std::shared_ptr<property::FcProperty> property) override;
};

}  // namespace qor::fc::resource::material
