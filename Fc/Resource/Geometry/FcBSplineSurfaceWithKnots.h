#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcBSplineSurfaceWithKnotsAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcBSplineSurfaceWithKnots, Resource.Geometry.
class QOR_API FcBSplineSurfaceWithKnots : public FcBSplineSurfaceWithKnotsAttributes {
 public:
  OcSurface ocSurface(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
