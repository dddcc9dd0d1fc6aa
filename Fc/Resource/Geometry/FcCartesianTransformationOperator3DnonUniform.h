#pragma once

#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3DnonUniformAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCartesianTransformationOperator3DnonUniform, Resource.Geometry.
class QOR_API FcCartesianTransformationOperator3DnonUniform
    : public FcCartesianTransformationOperator3DnonUniformAttributes {
 public:
  /// `Scale` acts along X, `Scale2` along Y, `Scale3` along Z; missing ones are `Scale`, a missing
  /// `Scale` is 1.
  math::Matrix getTransformation() const override;
  /// As that of the uniform operator, with `Scale2` and `Scale3` where the axes differ in length.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometry
