#pragma once

#include "Fc/ComplexGeometry/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcSurfaceOfRevolutionAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSurfaceOfRevolution, Resource.Geometry: a curve turned round an axis.
class QOR_API FcSurfaceOfRevolution : public FcSurfaceOfRevolutionAttributes {
 public:
  OcSurface ocSurface(ocMemoizer& memoizer) const override;
};

}  // namespace qor::fc::resource::geometry
