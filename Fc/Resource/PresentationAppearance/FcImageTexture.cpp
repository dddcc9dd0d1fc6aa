#include "Fc/Resource/PresentationAppearance/FcImageTexture.h"

namespace qor::fc::resource::presentationappearance {

generate::draw::Texture FcImageTexture::getTexture() const {
  auto texture = FcSurfaceTexture::getTexture();
  texture.location = URLReference();
  return texture;
}

}  // namespace qor::fc::resource::presentationappearance
