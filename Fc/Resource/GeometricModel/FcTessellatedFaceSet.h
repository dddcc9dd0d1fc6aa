#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "Fc/Resource/GeometricModel/FcTessellatedFaceSetAttributes.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

namespace qor::fc {
class FcDrawParams;
}
namespace qor::generate::draw {
class DrawInterface;
}

namespace qor::fc::resource::geometricmodel {

/// IfcTessellatedFaceSet, Resource.Geometric Model: flat faces over one list of points.
class QOR_API FcTessellatedFaceSet : public FcTessellatedFaceSetAttributes {
 public:
  /// Around all points of the list, whether faces use them or not.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  /// One for each point of the list, as the first texture map of the set gives them; a point that
  /// several faces map keeps the last one, a point that none maps has (0, 0). Empty without a map.
  virtual std::optional<std::vector<generate::draw::TextureCoordinate>> getTextureCoordinates()
      const;

 protected:
  FcTessellatedFaceSet() = default;

  bool hasCoordinates() const;
  /// The map of colours when it has some to give and the set has points; null otherwise.
  std::shared_ptr<presentationappearance::FcIndexedColourMap> usableColourMap() const;
  /// The target as one that takes materials; null for one that doesn't.
  static generate::draw::DrawInterface* materialTarget(const FcDrawParams& params);
};

}  // namespace qor::fc::resource::geometricmodel
