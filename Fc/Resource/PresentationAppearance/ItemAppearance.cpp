#include "Fc/Resource/PresentationAppearance/ItemAppearance.h"

#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Fc/Resource/PresentationAppearance/FcCurveStyle.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyle.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleShading.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleWithTextures.h"

namespace qor::fc {

using namespace resource::presentationappearance;

namespace {

void take(const FcSurfaceStyle& style, ItemAppearance& appearance) {
  for (const FcSurfaceStyleElementSelect& element : style.Styles()) {
    const FcBase* const entity = element.getEntity();
    if (const auto* shading = fcCast<FcSurfaceStyleShading>(entity)) appearance.shading = shading;
    if (const auto* textures = fcCast<FcSurfaceStyleWithTextures>(entity))
      appearance.textures = textures;
  }
}

void take(const FcCurveStyle& style, ItemAppearance& appearance) {
  if (const auto* colour = fcCast<FcColourRgb>(style.CurveColour().getEntity()))
    appearance.color = colour->color();
}

}  // namespace

ItemAppearance ItemAppearance::of(const resource::geometry::FcRepresentationItem& item) {
  ItemAppearance appearance;
  item.forEachPresentationStyle([&appearance](const FcPresentationStyle& style) {
    if (const auto* surface = fcCast<FcSurfaceStyle>(&style)) take(*surface, appearance);
    if (const auto* curve = fcCast<FcCurveStyle>(&style)) take(*curve, appearance);
  });
  return appearance;
}

}  // namespace qor::fc
