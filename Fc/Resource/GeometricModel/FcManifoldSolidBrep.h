#pragma once

#include "Fc/Resource/GeometricModel/FcManifoldSolidBrepAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcManifoldSolidBrep, Resource.Geometric Model: the body within a closed shell.
class QOR_API FcManifoldSolidBrep : public FcManifoldSolidBrepAttributes {
 public:
  /// As its outer shell; an assert without one.
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 protected:
  FcManifoldSolidBrep() = default;
  /// The outer shell and these voids, each point once.
  void transformWithVoids(const std::vector<std::shared_ptr<topology::FcClosedShell>>& voids,
                          const math::Matrix& matrix);
};

}  // namespace qor::fc::resource::geometricmodel
