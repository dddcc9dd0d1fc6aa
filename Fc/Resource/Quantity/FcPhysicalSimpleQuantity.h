#pragma once

#include "Fc/Resource/Quantity/FcPhysicalSimpleQuantityAttributes.h"

namespace qor::fc::resource::quantity {

/// IfcPhysicalSimpleQuantity, Resource.Quantity: one number, an area say. The number is SI,
/// whatever unit stands beside it.
class QOR_API FcPhysicalSimpleQuantity : public FcPhysicalSimpleQuantityAttributes {
 public:
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;

 protected:
  FcPhysicalSimpleQuantity() = default;
};

}  // namespace qor::fc::resource::quantity
