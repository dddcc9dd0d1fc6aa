#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleShading.h"

#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Qor/Draw/Material.h"

namespace qor::fc::resource::presentationappearance {

std::shared_ptr<generate::draw::Material> FcSurfaceStyleShading::getMaterial() const {
  auto material = std::make_shared<generate::draw::Material>();
  material->setSurfaceColor(SurfaceColour() ? SurfaceColour()->color()
                                            : generate::draw::Color(0, 0, 0));
  if (Transparency()) material->setOpacity(1 - static_cast<float>(Transparency()->value()));
  return material;
}

}  // namespace qor::fc::resource::presentationappearance
