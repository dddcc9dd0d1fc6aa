#pragma once

#include "Fc/Resource/Geometry/FcOffsetCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcOffsetCurve, Resource.Geometry: a curve at a distance from another one. It has no points.
class QOR_API FcOffsetCurve : public FcOffsetCurveAttributes {
 public:
  /// Those of the basis curve; none without one.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

 protected:
  FcOffsetCurve() = default;
};

}  // namespace qor::fc::resource::geometry
