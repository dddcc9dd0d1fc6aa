#pragma once

#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModelAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcFaceBasedSurfaceModel, Resource.Geometric Model: sets of faces that hang together.
class QOR_API FcFaceBasedSurfaceModel : public FcFaceBasedSurfaceModelAttributes {
 public:
  /// Each set by itself; an assert for one that is missing.
  void draw(const FcDrawParams& params) const override;
  /// Each point once, however many sets share it.
  void transform(const math::Matrix& matrix) override;
  /// Around all sets that have a box; empty when none has.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::geometricmodel
