#pragma once

#include "Fc/Resource/Geometry/FcCurveBoundedPlaneAttributes.h"
#include "Qor/Math/Point.h"

namespace qor::fc::resource::geometry {

/// IfcCurveBoundedPlane, Resource.Geometry: the part of a plane within closed curves, which lie in
/// the plane's frame.
class QOR_API FcCurveBoundedPlane : public FcCurveBoundedPlaneAttributes {
 public:
  /// As a polygon with holes. Nothing, with an assert, without a plane, its position or an outer
  /// boundary; an inner one without points is left out.
  void draw(const FcDrawParams& params) const override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 private:
  /// The rings in the frame around the plane, the outer one first; none on a failure.
  std::vector<std::vector<math::Point3d>> rings(const FcParams& params) const;
};

}  // namespace qor::fc::resource::geometry
