#pragma once

#include "Fc/Resource/GeometricModel/FcCsgPrimitive3DAttributes.h"

namespace qor::generate::draw {
class TransformationInterface;
}

namespace qor::fc::resource::geometricmodel {

/// IfcCsgPrimitive3D, Resource.Geometric Model: a simple body in a frame of its own. Without a
/// `Position` that is the frame around it.
class QOR_API FcCsgPrimitive3D : public FcCsgPrimitive3DAttributes {
 public:
  /// Moves the frame; sizes stay. An assert for a mirror, which is stored all the same.
  void transform(const math::Matrix& matrix) override;
  /// The matrix of `Position`; an assert and the identity without one.
  math::Matrix validPosition() const;

 protected:
  FcCsgPrimitive3D() = default;

  /// The matrix of `Position`, the identity without one.
  math::Matrix placement() const;
  /// A new `Position` of that matrix.
  void setPlacement(const math::Matrix& matrix);
  /// Makes the primitive's frame that of the target.
  void applyPlacement(generate::draw::TransformationInterface& target) const;
  /// The box around a box of the primitive's frame.
  math::Extent placedBox(const math::Extent& box) const;
};

}  // namespace qor::fc::resource::geometricmodel
