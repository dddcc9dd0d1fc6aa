#pragma once

#include "Fc/Resource/GeometricModel/FcGeometricSetAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcGeometricSet, Resource.Geometric Model: points, curves and surfaces without topology.
class QOR_API FcGeometricSet : public FcGeometricSetAttributes {
 public:
  /// Each element by itself.
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  /// Around all elements that have a box; empty when none has.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::geometricmodel
