#pragma once

#include "Fc/Resource/Geometry/FcAxis2Placement3DAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcAxis2Placement3D, Resource.Geometry: a right-handed frame in space.
class QOR_API FcAxis2Placement3D : public FcAxis2Placement3DAttributes {
 public:
  FcAxis2Placement3D() = default;
  /// An assert for a mirror, which is stored all the same.
  explicit FcAxis2Placement3D(const math::Matrix& matrix);

  /// The frame, with axes of length 1 at right angles: Z is `Axis`, X is `RefDirection` turned to
  /// be perpendicular to it. Without directions the axes are those of the surrounding frame.
  /// Directions that span no frame raise asserts: a zero `Axis` gives the identity, parallel
  /// directions the translation alone. Constant time, no allocation.
  math::Matrix placementGet() const;
  math::Matrix transformationGet() const override { return placementGet(); }

  /// Stores the frame: point and directions that are there are overwritten in place, so that
  /// placements that share them move too; missing ones are made, in no model. Axes are stored as
  /// they are; X and Z axes of the identity are stored as none. An assert for a mirror and for
  /// parallel axes, which are stored all the same.
  void setPlacement(const math::Matrix& matrix);

  /// An assert for a mirror, which is applied all the same.
  void transform(const math::Matrix& matrix) override;
};

/// A new frame in no model.
QOR_API std::shared_ptr<FcAxis2Placement3D> makePlacement(const math::Matrix& matrix);

}  // namespace qor::fc::resource::geometry
