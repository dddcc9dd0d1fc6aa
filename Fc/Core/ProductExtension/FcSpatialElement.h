#pragma once

#include "Fc/Core/ProductExtension/FcSpatialElementAttributes.h"

namespace qor::fc::core::productextension {

/// IfcSpatialElement, Core.Product Extension: a part of space, and what is in it.
class QOR_API FcSpatialElement : public FcSpatialElementAttributes {
 protected:
  FcSpatialElement() = default;
  /// The products that it refers to and those that it contains, where the walk wants these; then
  /// itself and its parts.
  void doGenerate(FcGenerateParams& params) const override;
};

}  // namespace qor::fc::core::productextension
