#pragma once

#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2DnonUniformAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCartesianTransformationOperator2DnonUniform, Resource.Geometry.
class QOR_API FcCartesianTransformationOperator2DnonUniform
    : public FcCartesianTransformationOperator2DnonUniformAttributes {
 public:
  /// `Scale` acts along X and Z, `Scale2` along Y; a missing `Scale2` is `Scale`, a missing `Scale`
  /// is 1.
  math::Matrix getTransformation() const override;
  /// `Scale2` counts only beside a `Scale`.
  math::Matrix2d getTransformation2d() const override;
};

}  // namespace qor::fc::resource::geometry
