#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcRationalBSplineSurfaceWithKnotsAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcRationalBSplineSurfaceWithKnots, Resource.Geometry.
class QOR_API FcRationalBSplineSurfaceWithKnots
    : public FcRationalBSplineSurfaceWithKnotsAttributes {
 public:
  OcSurface ocSurface(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
