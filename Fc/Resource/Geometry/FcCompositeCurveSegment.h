#pragma once

#include "Fc/Resource/Geometry/FcCompositeCurveSegmentAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCompositeCurveSegment, Resource.Geometry: a whole curve, maybe reversed.
class QOR_API FcCompositeCurveSegment : public FcCompositeCurveSegmentAttributes {
 public:
  std::vector<math::Point3d> curve(const FcParams& params) const override;
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params) const override;
  const FcCurve* parentCurve() const override { return ParentCurve().get(); }
};

}  // namespace qor::fc::resource::geometry
