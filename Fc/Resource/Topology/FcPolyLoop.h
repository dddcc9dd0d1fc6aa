#pragma once

#include <cstddef>

#include "Fc/Resource/Topology/FcPolyLoopAttributes.h"

namespace qor::fc::resource::topology {

/// IfcPolyLoop, Resource.Topology: a polygon.
///
/// Points that are missing are reported and left out of what it gives.
class QOR_API FcPolyLoop : public FcPolyLoopAttributes {
 public:
  /// As one polygon, in the plane's form when the points have two coordinates.
  void draw(const FcDrawParams& params) const override;
  /// Each point once, also where it stands in the loop several times.
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  bool boPoints2dGet(std::vector<math::Point2d>& points) const override;
  /// With height 0 for points of two coordinates.
  std::vector<math::Point3d> points3dGet(const FcParams& params) const override;

  /// Replaces the points by new ones of that many coordinates.
  void vPolygonSet(const std::vector<math::Point2d>& points);
  void vPolygonSet(const std::vector<math::Point3d>& points);
  /// The first point has that many coordinates.
  bool wasPolygonSetFromPointsOfDimension(std::size_t dimension) const;

 private:
  template <class Callback>
  void forEachPoint(Callback&& callback) const;
};

}  // namespace qor::fc::resource::topology
