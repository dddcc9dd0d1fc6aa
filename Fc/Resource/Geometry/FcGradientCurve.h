#pragma once

#include "Fc/Resource/Geometry/FcGradientCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcGradientCurve, Resource.Geometry: a base curve in plan, to which the segments give heights:
/// their X is the length along the base curve, their Y the height.
class QOR_API FcGradientCurve : public FcGradientCurveAttributes {
 public:
  /// The base curve with heights, as far as the segments reach; a point for each of either.
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
  /// The base curve in plan.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  bool is2d() const override;
  bool isClosed(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::geometry
