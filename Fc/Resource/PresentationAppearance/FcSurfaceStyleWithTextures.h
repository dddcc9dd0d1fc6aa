#pragma once

#include <vector>

#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleWithTexturesAttributes.h"

namespace qor::generate::draw {
struct Texture;
}

namespace qor::fc::resource::presentationappearance {

/// IfcSurfaceStyleWithTextures, Resource.Presentation Appearance.
class QOR_API FcSurfaceStyleWithTextures : public FcSurfaceStyleWithTexturesAttributes {
 public:
  /// What each of its textures gives, in order.
  std::vector<generate::draw::Texture> getTextures() const;
};

}  // namespace qor::fc::resource::presentationappearance
