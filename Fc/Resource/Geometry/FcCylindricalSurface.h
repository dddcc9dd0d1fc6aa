#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcCylindricalSurfaceAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCylindricalSurface, Resource.Geometry: round the Z axis of a frame, without ends.
class QOR_API FcCylindricalSurface : public FcCylindricalSurfaceAttributes {
 public:
  OcSurface ocSurface(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
