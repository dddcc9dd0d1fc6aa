#pragma once

#include "Fc/Resource/GeometricModel/FcRightCircularCylinderAttributes.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

namespace qor::fc::resource::geometricmodel {

/// IfcRightCircularCylinder, Resource.Geometric Model: the centre of its bottom is the origin of
/// its frame, it rises along the Z axis.
class QOR_API FcRightCircularCylinder : public FcRightCircularCylinderAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  /// Moves the frame; sizes stay. A mirror turns the X axis of the frame round.
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// In the cylinder's frame, with the coordinates of an image wrapped around it. Empty, with an
  /// assert, for sizes that aren't positive.
  std::optional<generate::draw::PolygonalFaceSetOpenGL> buildFaceSet(const FcParams& params) const;

 private:
  bool hasValidSizes() const;
};

}  // namespace qor::fc::resource::geometricmodel
