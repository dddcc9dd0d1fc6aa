#pragma once

#include "Fc/Resource/GeometricModel/FcAdvancedBrepWithVoidsAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcAdvancedBrepWithVoids, Resource.Geometric Model.
class QOR_API FcAdvancedBrepWithVoids : public FcAdvancedBrepWithVoidsAttributes {
 public:
  /// The outer shell alone; that the voids are missing is reported.
  void draw(const FcDrawParams& params) const override;
};

}  // namespace qor::fc::resource::geometricmodel
