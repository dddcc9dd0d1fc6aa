#pragma once

#include "Fc/Core/ProductExtension/FcRelSpaceBoundaryAttributes.h"

namespace qor::fc::core::productextension {

/// IfcRelSpaceBoundary, Core.Product Extension: what bounds a space, drawn as an object of its own.
class QOR_API FcRelSpaceBoundary : public FcRelSpaceBoundaryAttributes {
 protected:
  /// Its geometry in the frame of the space.
  void doGenerate(FcGenerateParams& params) const override;
};

}  // namespace qor::fc::core::productextension
