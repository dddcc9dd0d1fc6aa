#pragma once

#include "Fc/Resource/Geometry/FcSurfaceCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSurfaceCurve, Resource.Geometry: a curve on a surface. It has no points.
class QOR_API FcSurfaceCurve : public FcSurfaceCurveAttributes {
 public:
  /// Those of `Curve3D`; none without one.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;
};

}  // namespace qor::fc::resource::geometry
