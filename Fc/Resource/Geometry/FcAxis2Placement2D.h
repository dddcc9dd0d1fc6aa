#pragma once

#include "Fc/Resource/Geometry/FcAxis2Placement2DAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcAxis2Placement2D, Resource.Geometry: a right-handed frame in the plane.
class QOR_API FcAxis2Placement2D : public FcAxis2Placement2DAttributes {
 public:
  /// The frame in space, with Z axis (0, 0, 1). Without `RefDirection` the X axis is (1, 0, 0).
  math::Matrix placementGet() const;
  /// Stores origin and X axis, both with dimension 3. Point and direction that are there are
  /// overwritten in place; an X axis of (1, 0, 0) is stored as none.
  void placementSet(const math::Matrix& matrix);

  math::Matrix transformationGet() const override { return placementGet(); }
  /// The frame in the plane.
  math::Matrix2d transformation2dGet() const override;
  void transform(const math::Matrix& matrix) override;
  void transform2d(const math::Matrix2d& matrix) override;
};

}  // namespace qor::fc::resource::geometry
