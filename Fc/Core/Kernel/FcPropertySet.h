#pragma once

#include "Fc/Core/Kernel/FcPropertySetAttributes.h"
#include "Fc/Model/PropertyInterface.h"

namespace qor::fc::core::kernel {

/// IfcPropertySet, Core.Kernel: a named set of properties.
class QOR_API FcPropertySet : public FcPropertySetAttributes,
                              public PropertyInterface<resource::property::FcProperty> {
 public:
  /// Properties that another set or a complex property holds too stay listed in `data`.
  void deleteAllProperties(Data& data) override;
  std::shared_ptr<FcBase> getPropertyAsFcBase(std::string_view name) const override;

  bool deleteProperty(const std::string& name) override;
  void addProperty(std::shared_ptr<resource::property::FcProperty> property) override;
};

}  // namespace qor::fc::core::kernel
