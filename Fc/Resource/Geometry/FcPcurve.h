#pragma once

#include "Fc/Resource/Geometry/FcPcurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcPcurve, Resource.Geometry: a curve in the parameters of a surface. It has no points.
class QOR_API FcPcurve : public FcPcurveAttributes {
 public:
  /// Those of `ReferenceCurve`; none without one.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;
};

}  // namespace qor::fc::resource::geometry
