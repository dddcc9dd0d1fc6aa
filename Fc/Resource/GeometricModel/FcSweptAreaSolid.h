#pragma once

#include "Fc/Resource/GeometricModel/FcSweptAreaSolidAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcSweptAreaSolid, Resource.Geometric Model: a body that a profile leaves behind when it moves.
///
/// The profile lies in the XY plane of `Position`, which may be absent. What a class finds wrong
/// with its attributes it reports, and draws nothing.
class QOR_API FcSweptAreaSolid : public FcSweptAreaSolidAttributes {
 public:
  /// Moves and scales the profiles themselves, which other bodies may share.
  virtual void transformProfiles(const math::Matrix2d& matrix);
  /// The frame of `Position`; the identity without one.
  math::Matrix validPosition() const;

 protected:
  FcSweptAreaSolid() = default;

  /// Lets the target draw in the frame of `Position` from here on.
  void applyPosition(const FcDrawParams& params) const;
};

}  // namespace qor::fc::resource::geometricmodel
