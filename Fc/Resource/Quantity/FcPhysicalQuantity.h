#pragma once

#include <memory>

#include "Fc/Resource/Quantity/FcPhysicalQuantityAttributes.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc::resource::quantity {

/// IfcPhysicalQuantity, Resource.Quantity: something measured or counted of an object, with a name.
class QOR_API FcPhysicalQuantity : public FcPhysicalQuantityAttributes {
 public:
  /// The value with the default settings of what it measures: "2.500 m²". Null for a quantity that
  /// is made of others.
  virtual std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;

 protected:
  FcPhysicalQuantity() = default;
};

}  // namespace qor::fc::resource::quantity
