#pragma once

#include "Fc/Resource/PresentationAppearance/FcBlobTextureAttributes.h"

namespace qor::fc::resource::presentationappearance {

/// IfcBlobTexture, Resource.Presentation Appearance: an image file within the model.
class QOR_API FcBlobTexture : public FcBlobTextureAttributes {
 public:
  generate::draw::Texture getTexture() const override;
};

}  // namespace qor::fc::resource::presentationappearance
