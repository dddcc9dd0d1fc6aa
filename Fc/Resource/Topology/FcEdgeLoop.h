#pragma once

#include "Fc/Resource/Topology/FcEdgeLoopAttributes.h"

namespace qor::fc::resource::topology {

/// IfcEdgeLoop, Resource.Topology: a closed chain of edges.
class QOR_API FcEdgeLoop : public FcEdgeLoopAttributes {
 public:
  /// The points of its edges, one behind the other; a point at which two edges meet stands once.
  std::vector<math::Point3d> points3dGet(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::topology
