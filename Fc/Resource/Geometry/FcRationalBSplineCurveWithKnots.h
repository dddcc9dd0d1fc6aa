#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcRationalBSplineCurveWithKnotsAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcRationalBSplineCurveWithKnots, Resource.Geometry: with a weight for each of its poles.
class QOR_API FcRationalBSplineCurveWithKnots : public FcRationalBSplineCurveWithKnotsAttributes {
 public:
  OcCurve ocCurve(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
