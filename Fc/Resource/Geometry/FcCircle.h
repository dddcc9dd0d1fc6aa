#pragma once

#include "Fc/Resource/Geometry/FcCircleAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCircle, Resource.Geometry.
class QOR_API FcCircle : public FcCircleAttributes {
 public:
  bool isClosed(const FcParams& params) const override;
  /// Its centre has no height, and its axis is parallel to Z.
  bool is2d() const override;
  std::optional<std::vector<math::Point2d>> closedCurve2dGet(const FcParams& params) const override;
  /// A trim is an angle from the X axis of `Position`, or a point in that direction. Without trims
  /// one full turn, whose last point is the first again.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;

  /// Scales `Radius` too. An assert, and no change, for a matrix that scales differently in
  /// different directions.
  void transform(const math::Matrix& matrix) override;
  /// The square around the whole circle.
  std::optional<math::Extent2d> planarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::geometry
