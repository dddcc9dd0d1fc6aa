#pragma once

#include "Fc/Resource/GeometricModel/FcSweptDiskSolidPolygonalAttributes.h"

namespace qor::fc::resource::geometry {
class FcIndexedPolyCurve;
}

namespace qor::fc::resource::geometricmodel {

/// IfcSweptDiskSolidPolygonal, Resource.Geometric Model: a rod along straight legs, whose corners
/// are rounded to `FilletRadius` where that is given.
class QOR_API FcSweptDiskSolidPolygonal : public FcSweptDiskSolidPolygonalAttributes {
 public:
  std::vector<math::Point3d> getSweptDiskCurve(const FcParams& params) const override;

  /// The legs with their rounded corners as a new curve of lines and arcs, in no model; without
  /// points when there is no directrix.
  std::shared_ptr<geometry::FcIndexedPolyCurve> getDirectrixAsIndexedPolyCurve(
      const FcParams& params) const;
};

}  // namespace qor::fc::resource::geometricmodel
