#pragma once

#include "Fc/Resource/Geometry/FcAxis2PlacementAlternatives.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometry {

/// IfcAxis2Placement, Resource.Geometry: a frame in the plane or in space.
class QOR_API FcAxis2Placement : public FcAxis2PlacementAlternatives {
 public:
  using FcAxis2PlacementAlternatives::FcAxis2PlacementAlternatives;

  /// The frame; the identity when there is none.
  math::Matrix transformationGet() const;
  /// Becomes a new `FcAxis2Placement3D`, in no model.
  void setTransformation(const math::Matrix& matrix);
};

}  // namespace qor::fc::resource::geometry
