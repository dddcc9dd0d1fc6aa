#pragma once

#include <memory>

#include "Fc/Resource/Topology/FcEdgeCurveAttributes.h"

namespace qor::fc::resource::topology {

/// IfcEdgeCurve, Resource.Topology: an edge along a curve.
class QOR_API FcEdgeCurve : public FcEdgeCurveAttributes {
 public:
  /// The curve between the two vertices, against its direction where `SameSense` is false.
  bool getPoints2d(std::vector<math::Point2d>& points, const FcParams& params) const override;
  std::vector<math::Point3d> getPoints3d(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::topology
