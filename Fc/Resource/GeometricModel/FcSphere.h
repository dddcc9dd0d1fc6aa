#pragma once

#include "Fc/Resource/GeometricModel/FcSphereAttributes.h"
#include "Qor/Draw/TriangulatedFaceSetOpenGL.h"

namespace qor::math {
class CurveDiscretization;
}

namespace qor::fc::resource::geometricmodel {

/// IfcSphere, Resource.Geometric Model: around the origin of its frame.
class QOR_API FcSphere : public FcSphereAttributes {
 public:
  void draw(const FcDrawParams& params) const override;
  /// The radius follows a uniform scaling; nothing changes under another one.
  void transform(const math::Matrix& matrix) override;
  /// Empty for a radius that isn't positive.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// In the sphere's frame, with as many bands of latitude as a full circle has segments. Empty for
  /// a radius that isn't positive.
  generate::draw::TriangulatedFaceSetOpenGL getFaceSet(
      const math::CurveDiscretization& discretization) const;
};

}  // namespace qor::fc::resource::geometricmodel
