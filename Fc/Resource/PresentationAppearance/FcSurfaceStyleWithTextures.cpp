#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleWithTextures.h"

#include "Fc/Resource/PresentationAppearance/FcSurfaceTexture.h"

namespace qor::fc::resource::presentationappearance {

std::vector<generate::draw::Texture> FcSurfaceStyleWithTextures::getTextures() const {
  std::vector<generate::draw::Texture> textures;
  for (const auto& texture : Textures())
    if (texture) textures.push_back(texture->getTexture());
  return textures;
}

}  // namespace qor::fc::resource::presentationappearance
