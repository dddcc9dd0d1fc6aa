#pragma once

#include "Fc/Resource/Geometry/FcPolynomialCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcPolynomialCurve, Resource.Geometry. It has no points.
class QOR_API FcPolynomialCurve : public FcPolynomialCurveAttributes {
 public:
  /// An assert, and none.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;
};

}  // namespace qor::fc::resource::geometry
