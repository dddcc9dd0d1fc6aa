#pragma once

#include "Fc/Resource/Geometry/FcSegmentedReferenceCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSegmentedReferenceCurve, Resource.Geometry: a base curve to which the segments give cant. It
/// has no points: its segments alone aren't in the place of the curve.
class QOR_API FcSegmentedReferenceCurve : public FcSegmentedReferenceCurveAttributes {
 public:
  bool isClosed(const FcParams& params) const override;
  bool is2d() const override;
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
};

}  // namespace qor::fc::resource::geometry
