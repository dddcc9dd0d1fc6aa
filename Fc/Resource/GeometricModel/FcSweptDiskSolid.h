#pragma once

#include "Fc/Resource/GeometricModel/FcSweptDiskSolidAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcSweptDiskSolid, Resource.Geometric Model: a round rod along a curve, or a tube when
/// `InnerRadius` is there. The ends of the curve can't be trimmed: `StartParam` and `EndParam` have
/// no effect.
class QOR_API FcSweptDiskSolid : public FcSweptDiskSolidAttributes {
 public:
  /// One face set with soft sides. What is wrong with the radii or missing is reported, and nothing
  /// is drawn.
  void draw(const FcDrawParams& params) const override;
  /// Moves the curve itself; the radii stay.
  void transform(const math::Matrix& matrix) override;
  /// The curve's, grown by the radius.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// The points that the disk is carried along.
  virtual std::vector<math::Point3d> getSweptDiskCurve(const FcParams& params) const;

 private:
  bool isReadyToDraw() const;
};

}  // namespace qor::fc::resource::geometricmodel
