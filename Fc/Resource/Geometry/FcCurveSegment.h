#pragma once

#include "Fc/Resource/Geometry/FcCurveSegmentAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCurveSegment, Resource.Geometry: a part of a parent curve, laid so that it begins at its
/// placement in the direction of the X axis, as the segments of alignments.
class QOR_API FcCurveSegment : public FcCurveSegmentAttributes {
 public:
  /// Of lines, circles and clothoids. Other parents, and a segment without a placement, raise the
  /// assert of a class without points.
  std::vector<math::Point3d> curve(const FcParams& params) const override;
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params) const override;
  const FcCurve* parentCurve() const override { return ParentCurve().get(); }
  /// The placement keeps the XY plane.
  bool is2d() const override;
  /// Along the curve, in metres, from its placement to its end; empty where `curve` has no points.
  std::optional<double> length() const;

 private:
  std::optional<std::vector<math::Point2d>> localPoints(const FcParams& params) const;
};

}  // namespace qor::fc::resource::geometry
