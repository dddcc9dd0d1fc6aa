#pragma once

#include "Fc/Core/ProductExtension/FcSpaceAttributes.h"

namespace qor::fc::core::productextension {

/// IfcSpace, Core.Product Extension: a room, with its boundaries.
class QOR_API FcSpace : public FcSpaceAttributes {
 protected:
  /// Its boundaries, then what every part of space does.
  void doGenerate(FcGenerateParams& params) const override;
};

}  // namespace qor::fc::core::productextension
