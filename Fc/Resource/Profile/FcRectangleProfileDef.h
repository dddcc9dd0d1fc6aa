#pragma once

#include "Fc/Resource/Profile/FcRectangleProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcRectangleProfileDef, Resource.Profile: a rectangle around the origin of `Position`.
class QOR_API FcRectangleProfileDef : public FcRectangleProfileDefAttributes {
 public:
  /// Dimensions that aren't positive are reported.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// The rectangle with sharp corners, closed, moved by `Position`; also for the classes that round
  /// their corners.
  std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const override;
  /// The rotation goes into `Position`, the lengths of the matrix's rows into the dimensions.
  void transform2d(const math::Matrix2d& matrix) override;
  /// Of the dimensions; a turned `Position` doesn't turn it.
  std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const override;

  /// The dimensions, which are reported unless they are above the general tolerance.
  const measure::FcPositiveLengthMeasure& XDimAssert() const;
  const measure::FcPositiveLengthMeasure& YDimAssert() const;
};

}  // namespace qor::fc::resource::profile
