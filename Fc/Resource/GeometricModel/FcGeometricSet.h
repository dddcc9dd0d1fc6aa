#pragma once

#include "Fc/Resource/GeometricModel/FcGeometricSetAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcGeometricSet, Resource.Geometric Model: points, curves and surfaces side by side. Elements
/// that are missing are passed over.
class QOR_API FcGeometricSet : public FcGeometricSetAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  /// The box around the boxes of all elements; empty when there are none or one has none.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::geometricmodel
