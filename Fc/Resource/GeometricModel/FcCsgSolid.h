#pragma once

#include "Fc/Resource/GeometricModel/FcCsgSolidAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcCsgSolid, Resource.Geometric Model: the result of a tree of solids, which it stands for in
/// all its operations. Without `TreeRootExpression` it is nothing, silently.
class QOR_API FcCsgSolid : public FcCsgSolidAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::geometricmodel
