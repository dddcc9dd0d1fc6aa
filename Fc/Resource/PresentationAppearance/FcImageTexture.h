#pragma once

#include "Fc/Resource/PresentationAppearance/FcImageTextureAttributes.h"

namespace qor::fc::resource::presentationappearance {

/// IfcImageTexture, Resource.Presentation Appearance: an image that lies elsewhere.
class QOR_API FcImageTexture : public FcImageTextureAttributes {
 public:
  generate::draw::Texture getTexture() const override;
};

}  // namespace qor::fc::resource::presentationappearance
