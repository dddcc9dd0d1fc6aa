#pragma once

#include <memory>

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Topology/FcEdgeCurveAttributes.h"

namespace qor::fc::resource::topology {

/// IfcEdgeCurve, Resource.Topology: an edge along a curve.
class QOR_API FcEdgeCurve : public FcEdgeCurveAttributes {
 public:
  std::shared_ptr<TopoDS_Edge> ocEdge(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::topology
