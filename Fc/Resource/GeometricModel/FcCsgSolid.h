#pragma once

#include "Fc/Resource/GeometricModel/FcCsgSolidAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcCsgSolid, Resource.Geometric Model: a tree of boolean operations on simple bodies. All it
/// does is done by the root of the tree; without one, nothing.
class QOR_API FcCsgSolid : public FcCsgSolidAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// The item behind `TreeRootExpression`; null for none.
  std::shared_ptr<geometry::FcRepresentationItem> rootItem() const;
};

}  // namespace qor::fc::resource::geometricmodel
