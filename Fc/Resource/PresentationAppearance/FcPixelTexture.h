#pragma once

#include "Fc/Resource/PresentationAppearance/FcPixelTextureAttributes.h"

namespace qor::fc::resource::presentationappearance {

/// IfcPixelTexture, Resource.Presentation Appearance: an image given pixel by pixel.
class QOR_API FcPixelTexture : public FcPixelTextureAttributes {
 public:
  generate::draw::Texture getTexture() const override;
};

}  // namespace qor::fc::resource::presentationappearance
