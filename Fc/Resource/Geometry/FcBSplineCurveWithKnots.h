#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcBSplineCurveWithKnotsAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcBSplineCurveWithKnots, Resource.Geometry.
class QOR_API FcBSplineCurveWithKnots : public FcBSplineCurveWithKnotsAttributes {
 public:
  OcCurve ocCurve(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
