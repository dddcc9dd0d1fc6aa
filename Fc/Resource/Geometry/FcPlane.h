#pragma once

#include "Fc/Resource/Geometry/FcPlaneAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcPlane, Resource.Geometry: the XY plane of its position.
class QOR_API FcPlane : public FcPlaneAttributes {
 public:
  /// Moves `Position`, of which a missing one is made, with an assert. Under a mirror the X axis is
  /// turned round, so that the frame stays right-handed.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometry
