#pragma once

#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoidsAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcFacetedBrepWithVoids, Resource.Geometric Model: a body with cavities.
class QOR_API FcFacetedBrepWithVoids : public FcFacetedBrepWithVoidsAttributes {
 public:
  /// The outer shell alone, with an assert that says so.
  void draw(const FcDrawParams& params) const override;
  /// The voids too.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometricmodel
