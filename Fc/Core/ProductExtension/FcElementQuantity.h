#pragma once

#include "Fc/Core/ProductExtension/FcElementQuantityAttributes.h"

namespace qor::fc::core::productextension {

/// IfcElementQuantity, Core.Product Extension: a named set of quantities.
class QOR_API FcElementQuantity : public FcElementQuantityAttributes {
 public:
  /// All its quantities leave the list of `data`, whoever else names them.
  void deleteAllProperties(Data& data) override;
  std::shared_ptr<FcBase> getPropertyAsFcBase(std::string_view name) const override;
};

}  // namespace qor::fc::core::productextension
