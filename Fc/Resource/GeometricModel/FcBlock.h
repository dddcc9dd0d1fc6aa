#pragma once

#include "Fc/Resource/GeometricModel/FcBlockAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcBlock, Resource.Geometric Model: a box from the origin of its frame to the three lengths.
class QOR_API FcBlock : public FcBlockAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// All three lengths are above the general tolerance; an assert for each that isn't.
  bool ValidXYZLengths() const;
};

}  // namespace qor::fc::resource::geometricmodel
