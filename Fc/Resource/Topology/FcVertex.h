#pragma once

#include <memory>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Topology/FcVertexAttributes.h"

namespace qor::fc::resource::topology {

/// IfcVertex, Resource.Topology: an end of edges, which only its subclasses put in a place.
class QOR_API FcVertex : public FcVertexAttributes {
 public:
  /// A vertex of the solid modeller, shared by all edges of `memoizer`. Null, with an assert,
  /// without a place.
  virtual std::shared_ptr<TopoDS_Vertex> ocVertex(ocMemoizer& memoizer) const;
};

}  // namespace qor::fc::resource::topology
