#pragma once

#include "Fc/Resource/GeometricModel/FcManifoldSolidBrepAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcManifoldSolidBrep, Resource.Geometric Model: a solid by its boundary. Without `Outer` it
/// reports so, and is nothing.
class QOR_API FcManifoldSolidBrep : public FcManifoldSolidBrepAttributes {
 public:
  /// The outer shell.
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 protected:
  FcManifoldSolidBrep() = default;

 private:
  bool hasOuter(const char* operation) const;
};

}  // namespace qor::fc::resource::geometricmodel
