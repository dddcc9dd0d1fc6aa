#pragma once

#include "Fc/Resource/GeometricModel/FcBoxedHalfSpaceAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcBoxedHalfSpace, Resource.Geometric Model: a half-space with the box that matters of it, which
/// operations don't look at.
class QOR_API FcBoxedHalfSpace : public FcBoxedHalfSpaceAttributes {
 public:
  /// An assert, and no change, unless there are a base surface and a box.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometricmodel
