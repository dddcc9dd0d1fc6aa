#pragma once

#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2DAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCartesianTransformationOperator2D, Resource.Geometry.
class QOR_API FcCartesianTransformationOperator2D
    : public FcCartesianTransformationOperator2DAttributes {
 public:
  /// A new operator with its point and directions, in no model: with one scale when both axes are
  /// of the same length, else with two. Axes of the identity are left out, and so is a scale of 1.
  static std::shared_ptr<FcCartesianTransformationOperator2D> createTransformation(
      const math::Matrix2d& matrix);

  /// `Scale` acts in all three directions.
  math::Matrix getTransformation() const override;
  virtual math::Matrix2d getTransformation2d() const;
};

}  // namespace qor::fc::resource::geometry
