#pragma once

#include "Fc/Resource/Geometry/FcEllipseAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcEllipse, Resource.Geometry.
class QOR_API FcEllipse : public FcEllipseAttributes {
 public:
  /// `Position` keeps the XY plane.
  bool is2d() const override;
  /// A trim is the parameter t of (SemiAxis1 · cos t, SemiAxis2 · sin t) in `Position`, or a point
  /// there. Without trims one full turn, whose last point is the first again.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;

  /// Scales the semi axes too. An assert, and no change, for a mirror.
  void transform(const math::Matrix& matrix) override;
  /// The box around the whole ellipse itself, not around points of it.
  std::optional<math::Extent2d> planarBox(const FcParams& params) const override;

 private:
  std::vector<math::Point2d> localPoints(const FcParams& params, const Trim& trim1,
                                         const Trim& trim2, bool reverse) const;
};

}  // namespace qor::fc::resource::geometry
