#pragma once

#include "Fc/Core/ProductExtension/FcElementTypeAttributes.h"

namespace qor::fc::core::productextension {

/// IfcElementType, Core.Product Extension: the type of building elements.
class QOR_API FcElementType : public FcElementTypeAttributes {
 public:
  /// A text that is none of the enumeration's goes into `ElementType`.
  void setPredefinedTypeFromString(const std::string& text) override;

 protected:
  FcElementType() = default;
};

}  // namespace qor::fc::core::productextension
