#pragma once

#include "Fc/Resource/Geometry/FcAxis2Placement3DAttributes.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometry {

/// IfcAxis2Placement3D, Resource.Geometry: a right-handed frame in space.
class QOR_API FcAxis2Placement3D : public FcAxis2Placement3DAttributes {
 public:
  FcAxis2Placement3D() = default;
  /// An assert for a mirror, which is stored all the same.
  explicit FcAxis2Placement3D(const math::Matrix& matrix);

  /// Stores the frame: point and directions that are there are overwritten in place, so that
  /// placements that share them move too; missing ones are made, in no model. Axes are stored as
  /// they are; X and Z axes of the identity are stored as none. An assert for a mirror and for
  /// parallel axes, which are stored all the same.
  void setPlacement(const math::Matrix& matrix);
};

}  // namespace qor::fc::resource::geometry
