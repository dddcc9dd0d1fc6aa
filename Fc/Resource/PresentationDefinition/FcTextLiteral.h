#pragma once

#include "Fc/Resource/PresentationDefinition/FcTextLiteralAttributes.h"

namespace qor::fc::resource::presentationdefinition {

/// IfcTextLiteral, Resource.Presentation Definition: a line of text at a place.
class QOR_API FcTextLiteral : public FcTextLiteralAttributes {
 public:
  /// From the origin of its placement along the X axis.
  void draw(const FcDrawParams& params) const override;
  /// Moves the placement. An assert for a mirror, which is stored all the same.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::presentationdefinition
