#pragma once

#include "Fc/Resource/PresentationAppearance/FcSurfaceTextureAttributes.h"
#include "Qor/Draw/Texture.h"

namespace qor::fc::resource::presentationappearance {

/// IfcSurfaceTexture, Resource.Presentation Appearance: an image on a surface.
class QOR_API FcSurfaceTexture : public FcSurfaceTextureAttributes {
 public:
  /// The image as it stands in the model: nothing is read from elsewhere, nothing decoded.
  virtual generate::draw::Texture getTexture() const;

 protected:
  FcSurfaceTexture() = default;
};

}  // namespace qor::fc::resource::presentationappearance
