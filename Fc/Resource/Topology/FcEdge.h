#pragma once

#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Topology/FcEdgeAttributes.h"
#include "Qor/Math/Point.h"

namespace qor::fc::resource::geometry {
class FcCartesianPoint;
}

namespace qor::fc::resource::topology {

/// IfcEdge, Resource.Topology: the way from one vertex to another, straight where no class below
/// gives it a curve.
class QOR_API FcEdge : public FcEdgeAttributes {
 public:
  /// The edge for the solid modeller, between vertices that it shares with others of `memoizer`.
  /// Null, with an assert, when it can't be made.
  virtual std::shared_ptr<TopoDS_Edge> ocEdge(ocMemoizer& memoizer) const;
  /// From start to end. False, and no change, for an edge that isn't one of the XY plane or misses
  /// an end. Throws `qor::exception` ("Not of correct type") for a vertex without a cartesian
  /// point.
  virtual bool getPoints2d(std::vector<math::Point2d>& points, const FcParams& params) const;
  /// The same in space; none for an edge that misses an end.
  virtual std::vector<math::Point3d> getPoints3d(const FcParams& params) const;

 protected:
  /// Where a vertex lies; null for no vertex.
  static std::shared_ptr<geometry::FcCartesianPoint> pointOf(
      const std::shared_ptr<FcVertex>& vertex);
};

}  // namespace qor::fc::resource::topology
