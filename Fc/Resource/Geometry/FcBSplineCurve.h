#pragma once

#include "Fc/Resource/Geometry/FcBSplineCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcBSplineCurve, Resource.Geometry. It has no points of its own: it is for the solid modeller.
class QOR_API FcBSplineCurve : public FcBSplineCurveAttributes {
 public:
  /// One length of 1.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

 protected:
  FcBSplineCurve() = default;
};

}  // namespace qor::fc::resource::geometry
