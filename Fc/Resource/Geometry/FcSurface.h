#pragma once

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcSurfaceAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSurface, Resource.Geometry: a surface, most of which only the solid modeller knows.
class QOR_API FcSurface : public FcSurfaceAttributes {
 public:
  /// The surface for the solid modeller, made once for all faces that share `memoizer`. Null, with
  /// an assert, when it can't be made. The base form reports that the class has none.
  virtual OcSurface ocSurface(ocMemoizer& memoizer) const;

 protected:
  FcSurface() = default;
};

}  // namespace qor::fc::resource::geometry
