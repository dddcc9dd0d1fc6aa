#include "Fc/Resource/PresentationAppearance/FcSurfaceTexture.h"

#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2D.h"

namespace qor::fc::resource::presentationappearance {

generate::draw::Texture FcSurfaceTexture::getTexture() const {
  generate::draw::Texture texture;
  texture.repeatS = RepeatS();
  texture.repeatT = RepeatT();
  if (TextureTransform()) texture.transformation = TextureTransform()->getTransformation2d();
  return texture;
}

}  // namespace qor::fc::resource::presentationappearance
