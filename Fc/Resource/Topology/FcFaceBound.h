#pragma once

#include <vector>

#include "Fc/Resource/Topology/FcFaceBoundAttributes.h"
#include "Qor/Math/Point.h"

namespace qor::fc::resource::topology {

/// IfcFaceBound, Resource.Topology: a loop as the edge of a face, walked backwards where
/// `Orientation` is false.
class QOR_API FcFaceBound : public FcFaceBoundAttributes {
 public:
  /// As one polygon.
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// The corners of the loop; see `FcLoop`. False and none without a loop.
  bool getPoints2d(std::vector<math::Point2d>& points, const FcParams& params) const;
  std::vector<math::Point3d> getPoints3d(const FcParams& params) const;
};

}  // namespace qor::fc::resource::topology
