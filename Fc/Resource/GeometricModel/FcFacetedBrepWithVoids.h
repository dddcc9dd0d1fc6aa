#pragma once

#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoidsAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcFacetedBrepWithVoids, Resource.Geometric Model.
class QOR_API FcFacetedBrepWithVoids : public FcFacetedBrepWithVoidsAttributes {
 public:
  /// The outer shell alone; that the voids are missing is reported.
  void draw(const FcDrawParams& params) const override;
};

}  // namespace qor::fc::resource::geometricmodel
