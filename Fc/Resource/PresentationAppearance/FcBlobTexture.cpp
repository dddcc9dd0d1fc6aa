#include "Fc/Resource/PresentationAppearance/FcBlobTexture.h"

namespace qor::fc::resource::presentationappearance {

generate::draw::Texture FcBlobTexture::getTexture() const {
  auto texture = FcSurfaceTexture::getTexture();
  texture.format = RasterFormat();
  texture.file = RasterCode();
  return texture;
}

}  // namespace qor::fc::resource::presentationappearance
