#pragma once

#include <memory>

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Topology/FcVertexPointAttributes.h"

namespace qor::fc::resource::topology {

/// IfcVertexPoint, Resource.Topology: a vertex at a point.
class QOR_API FcVertexPoint : public FcVertexPointAttributes {
 public:
  std::shared_ptr<TopoDS_Vertex> ocVertex(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::topology
