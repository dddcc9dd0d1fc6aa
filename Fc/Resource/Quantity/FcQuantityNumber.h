#pragma once

#include "Fc/Resource/Quantity/FcQuantityNumberAttributes.h"

namespace qor::fc::resource::quantity {

/// IfcQuantityNumber, Resource.Quantity: a number of which the schema doesn't say what it measures.
class QOR_API FcQuantityNumber : public FcQuantityNumberAttributes {
 public:
  /// As a plain number, without a unit.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

}  // namespace qor::fc::resource::quantity
