#pragma once

#include <memory>

#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleShadingAttributes.h"

namespace qor::generate::draw {
class Material;
}

namespace qor::fc::resource::presentationappearance {

/// IfcSurfaceStyleShading, Resource.Presentation Appearance.
class QOR_API FcSurfaceStyleShading : public FcSurfaceStyleShadingAttributes {
 public:
  /// A new material with the colour and opacity of the style; black without `SurfaceColour`.
  virtual std::shared_ptr<generate::draw::Material> getMaterial() const;
};

}  // namespace qor::fc::resource::presentationappearance
