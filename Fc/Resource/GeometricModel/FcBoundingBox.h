#pragma once

#include "Fc/Resource/GeometricModel/FcBoundingBoxAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcBoundingBox, Resource.Geometric Model: a box around something, which isn't drawn.
class QOR_API FcBoundingBox : public FcBoundingBoxAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  /// Empty without a corner.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  /// Becomes the box around its moved corners. Its point gets the new corner in place.
  void transform(const math::Matrix& matrix) override;

 private:
  std::optional<math::Extent> extent() const;
};

}  // namespace qor::fc::resource::geometricmodel
