#pragma once

#include "Fc/Resource/GeometricModel/FcRectangularPyramidAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcRectangularPyramid, Resource.Geometric Model: a pyramid on a rectangle that begins at the
/// origin of its frame.
class QOR_API FcRectangularPyramid : public FcRectangularPyramidAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// Both lengths and the height are above the general tolerance; an assert for each that isn't.
  bool ValidXYLengthsHeight() const;
};

}  // namespace qor::fc::resource::geometricmodel
