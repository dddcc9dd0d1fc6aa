#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcSurfaceOfLinearExtrusionAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSurfaceOfLinearExtrusion, Resource.Geometry: a curve moved along a direction, without ends.
class QOR_API FcSurfaceOfLinearExtrusion : public FcSurfaceOfLinearExtrusionAttributes {
 public:
  OcSurface ocSurface(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
