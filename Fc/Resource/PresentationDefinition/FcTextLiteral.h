#pragma once

#include "Fc/Resource/PresentationDefinition/FcTextLiteralAttributes.h"

namespace qor::fc::resource::presentationdefinition {

/// IfcTextLiteral, Resource.Presentation Definition: a line of text at a place.
class QOR_API FcTextLiteral : public FcTextLiteralAttributes {
 public:
  /// In the frame of `Placement`, along its X axis.
  void draw(const FcDrawParams& params) const override;
  /// Moves `Placement`. A mirror is reported, and applied all the same.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::presentationdefinition
