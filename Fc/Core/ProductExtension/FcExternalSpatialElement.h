#pragma once

#include "Fc/Core/ProductExtension/FcExternalSpatialElementAttributes.h"

namespace qor::fc::core::productextension {

/// IfcExternalSpatialElement, Core.Product Extension: space outside, with its boundaries.
class QOR_API FcExternalSpatialElement : public FcExternalSpatialElementAttributes {
 protected:
  /// Its boundaries, then what every part of space does.
  void doGenerate(FcGenerateParams& params) const override;
};

}  // namespace qor::fc::core::productextension
