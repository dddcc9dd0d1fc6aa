#pragma once

#include "Fc/Core/Kernel/FcProjectAttributes.h"
#include "Qor/Math/Angle.h"
#include "Qor/Math/Vector.h"

namespace qor::fc::core::kernel {

/// IfcProject, Core.Kernel: the root of a model.
class QOR_API FcProject : public FcProjectAttributes {
 public:
  /// The direction of north in the model's plane, clockwise from +Y, above -pi up to pi; 0 where
  /// no context says.
  math::Angle getTrueNorth() const;
  /// Stores it with the context of the model's bodies, which is made where it is missing.
  void setTrueNorth(Data& data, const math::Angle& clockwiseFromY);
  /// `north` needs no length of 1. The new direction isn't listed in `data`.
  void setTrueNorth(Data& data, const math::Vector2d& north);

 protected:
  /// In a walk for one type, what its libraries declare; then its parts. Throws `qor::exception`
  /// when something that isn't an object is declared.
  void doGenerate(FcGenerateParams& params) const override;
};

}  // namespace qor::fc::core::kernel
