#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleRendering.h"

#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Qor/Draw/Material.h"

namespace qor::fc::resource::presentationappearance {

using generate::draw::Color;
using Method = generate::draw::ReflectanceMethod;

namespace {

// No colour for a select that holds nothing.
Color colorOf(const FcColourOrFactor& select, const Color& surface) {
  switch (select.type()) {
    case FcColourOrFactor::Types::ColourRgb:
      return select.ColourRgb() ? select.ColourRgb()->color() : Color();
    case FcColourOrFactor::Types::NormalisedRatioMeasure: {
      const auto factor = static_cast<float>(select.NormalisedRatioMeasure().value());
      return {surface.red * factor, surface.green * factor, surface.blue * factor};
    }
    default:
      return {};
  }
}

Method methodOf(FcReflectanceMethodEnum method) {
  switch (method.value()) {
    case FcReflectanceMethodEnum::PHYSICAL:
      return Method::Physical;
    case FcReflectanceMethodEnum::PLASTIC:
      return Method::Plastic;
    default:
      return method.value() < FcReflectanceMethodEnum::NOTDEFINED
                 ? static_cast<Method>(method.value())
                 : Method::NotDefined;
  }
}

}  // namespace

std::shared_ptr<generate::draw::Material> FcSurfaceStyleRendering::getMaterial() const {
  auto material = FcSurfaceStyleShading::getMaterial();
  const Color& surface = material->getSurfaceColor();
  material->setDiffuseColor(colorOf(DiffuseColour(), surface));
  material->setTransmissionColor(colorOf(TransmissionColour(), surface));
  material->setDiffuseTransmissionColor(colorOf(DiffuseTransmissionColour(), surface));
  material->setReflectionColor(colorOf(ReflectionColour(), surface));
  material->setSpecularColor(colorOf(SpecularColour(), surface));
  if (SpecularHighlight().type() == FcSpecularHighlightSelect::Types::SpecularExponent)
    material->setSpecularHighlight(
        static_cast<float>(SpecularHighlight().SpecularExponent().value()));
  material->setReflectanceMehod(methodOf(ReflectanceMethod()));
  return material;
}

}  // namespace qor::fc::resource::presentationappearance
