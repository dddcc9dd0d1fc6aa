#pragma once

#include "Fc/Resource/Topology/FcOrientedEdgeAttributes.h"

namespace qor::fc::resource::topology {

/// IfcOrientedEdge, Resource.Topology: an edge in the direction of a loop.
class QOR_API FcOrientedEdge : public FcOrientedEdgeAttributes {
 public:
  /// Those of its element, from last to first where `Orientation` is false.
  bool getPoints2d(std::vector<math::Point2d>& points, const FcParams& params) const override;
  std::vector<math::Point3d> getPoints3d(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::topology
