#pragma once

#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3DAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCartesianTransformationOperator3D, Resource.Geometry.
class QOR_API FcCartesianTransformationOperator3D
    : public FcCartesianTransformationOperator3DAttributes {
 public:
  math::Matrix getTransformation() const override;
  /// Replaces point and directions by new ones, in no model, and sets `Scale` to that of the moved
  /// frame. An assert when it is scaled differently in different directions.
  void transform(const math::Matrix& matrix) override;

 protected:
  /// The frame without a scale.
  math::Matrix frame() const;
  /// Stores the frame of `Axis1` and `Axis3` times the matrix, and the length of its X axis as
  /// `Scale` unless that is 1. Gives back the lengths of all three axes.
  math::Vector3d storeTransformed(const math::Matrix& matrix);
};

}  // namespace qor::fc::resource::geometry
