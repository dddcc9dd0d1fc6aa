#pragma once

#include "Fc/Resource/Geometry/FcCartesianTransformationOperatorAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCartesianTransformationOperator, Resource.Geometry: a frame with a scale, which may mirror.
class QOR_API FcCartesianTransformationOperator
    : public FcCartesianTransformationOperatorAttributes {
 public:
  /// The matrix that scales first and then puts into the frame. Directions of any length; missing
  /// ones follow from the others, a missing origin is 0.
  virtual math::Matrix getTransformation() const = 0;

 protected:
  FcCartesianTransformationOperator() = default;

  /// The frame without a scale: `Axis1` and `Axis2` made perpendicular to `z` and to each other.
  math::Matrix frameAround(const math::Vector3d& z) const;
};

}  // namespace qor::fc::resource::geometry
