#pragma once

#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleRenderingAttributes.h"

namespace qor::fc::resource::presentationappearance {

/// IfcSurfaceStyleRendering, Resource.Presentation Appearance.
class QOR_API FcSurfaceStyleRendering : public FcSurfaceStyleRenderingAttributes {
 public:
  /// What a shading gives, with the further colours of the style (a factor is one of the surface
  /// colour), the exponent of its highlight and its method of reflectance.
  std::shared_ptr<generate::draw::Material> getMaterial() const override;
};

}  // namespace qor::fc::resource::presentationappearance
