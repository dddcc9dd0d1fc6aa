#pragma once

#include "Fc/Resource/Profile/FcParameterizedProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcParameterizedProfileDef, Resource.Profile: a shape with a name and dimensions, which
/// `Position` moves and turns in its plane. Slopes of flanges, legs and webs have no effect.
class QOR_API FcParameterizedProfileDef : public FcParameterizedProfileDefAttributes {
 public:
  /// The outer contour as a new curve of lines and arcs, in the sense in which contours run. The
  /// base form reports that the class has none and gives an empty curve.
  virtual std::shared_ptr<geometry::FcIndexedPolyCurve> generateIndexedPolycurve() const;

  /// `Position` in the plane; the identity where it is absent.
  math::Matrix2d validPosition() const;

  /// The one curve of `generateIndexedPolycurve`.
  std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> getAsIndexedPolyCurves()
      const override;
  /// The points of that curve, soft along its arcs.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// Acts on `Position`, which is made where it is absent; dimensions stay.
  void transform2d(const math::Matrix2d& matrix) override;

 protected:
  FcParameterizedProfileDef() = default;

  /// The box that reaches `xHalf` and `yHalf` to either side of the origin of `Position`, which
  /// doesn't turn it.
  math::Extent2d boxAroundPosition(double xHalf, double yHalf) const;
};

}  // namespace qor::fc::resource::profile
