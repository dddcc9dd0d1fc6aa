#pragma once

#include "Fc/Resource/GeometricModel/FcBoundingBoxAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcBoundingBox, Resource.Geometric Model: a box along the axes, from its corner on.
class QOR_API FcBoundingBox : public FcBoundingBoxAttributes {
 public:
  /// Draws nothing: a box stands for a body, it isn't one.
  void draw(const FcDrawParams& params) const override;
  /// Becomes the box around its moved corners. Nothing without a corner.
  void transform(const math::Matrix& matrix) override;
  /// Empty without a corner.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 private:
  std::optional<math::Extent> extent() const;
};

}  // namespace qor::fc::resource::geometricmodel
