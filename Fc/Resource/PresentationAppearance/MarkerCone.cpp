#include "Fc/Drawing/MarkerCone.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyle.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleShading.h"

namespace qor::fc::utilities {

using namespace resource::presentationappearance;
using resource::geometricmodel::FcRightCircularCone;
using resource::geometry::FcAxis2Placement3D;

namespace {

// The item is linked to its style weakly: whoever draws it keeps the result.
std::shared_ptr<FcStyledItem> style(const std::shared_ptr<FcRightCircularCone>& cone,
                                    const generate::draw::Color& color) {
  auto colour = makeEntity<FcColourRgb>();
  colour->setRed(color.red);
  colour->setGreen(color.green);
  colour->setBlue(color.blue);
  auto shading = makeEntity<FcSurfaceStyleShading>();
  shading->setSurfaceColour(std::move(colour));
  auto surface = makeEntity<FcSurfaceStyle>();
  surface->setSide(FcSurfaceSide::BOTH);
  surface->setStyles({FcSurfaceStyleElementSelect(std::move(shading))});
  auto styled = makeEntity<FcStyledItem>();
  styled->setStyles({std::move(surface)});
  styled->setItem(cone);
  return styled;
}

}  // namespace

void drawMarkerCone(const FcDrawParams& params, const math::Matrix& frame, double height,
                    double bottomRadius, const generate::draw::Color& color) {
  auto placement = makeEntity<FcAxis2Placement3D>();
  placement->setPlacement(frame);
  const auto cone = makeEntity<FcRightCircularCone>();
  cone->setPosition(std::move(placement));
  cone->setHeight(height);
  cone->setBottomRadius(bottomRadius);
  const auto styled = style(cone, color);
  params->drawRepresentationItem(cone, params, generate::draw::SurfaceDrawType::Surface);
}

}  // namespace qor::fc::utilities
