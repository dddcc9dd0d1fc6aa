#pragma once

#include <memory>

#include "Fc/Core/ProductExtension/FcElementQuantityAttributes.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc::core::productextension {

/// IfcElementQuantity, Core.Product Extension: a named set of quantities.
class QOR_API FcElementQuantity : public FcElementQuantityAttributes {
 public:
  /// All its quantities leave the list of `data`, whoever else names them.
  void deleteAllProperties(Data& data) override;
  std::shared_ptr<FcBase> getPropertyAsFcBase(std::string_view name) const override;
  /// The value of a quantity of this set, with the settings that the host made for it by the names
  /// of the set and the quantity, else with those of what it measures. Null for a quantity that is
  /// made of others.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentationFor(
      const resource::quantity::FcPhysicalQuantity& quantity) const;
};

}  // namespace qor::fc::core::productextension
