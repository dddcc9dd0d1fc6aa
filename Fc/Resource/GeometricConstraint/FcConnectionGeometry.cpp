#include "Fc/Resource/GeometricConstraint/FcConnectionGeometry.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionCurveGeometry.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionPointGeometry.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionSurfaceGeometry.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionVolumeGeometry.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc::resource::geometricconstraint {

namespace {

const FcBase* onRelatingElement(const FcConnectionGeometry& geometry) {
  if (const auto* point = fcCast<FcConnectionPointGeometry>(&geometry))
    return point->PointOnRelatingElement().getEntity();
  if (const auto* curve = fcCast<FcConnectionCurveGeometry>(&geometry))
    return curve->CurveOnRelatingElement().getEntity();
  if (const auto* surface = fcCast<FcConnectionSurfaceGeometry>(&geometry))
    return surface->SurfaceOnRelatingElement().getEntity();
  if (const auto* volume = fcCast<FcConnectionVolumeGeometry>(&geometry))
    return volume->VolumeOnRelatingElement().getEntity();
  return nullptr;
}

}  // namespace

void FcConnectionGeometry::generate(FcGenerateParams& params) const {
  FcDrawInterface* const target = params.drawInterface();
  const auto* const item = fcCast<geometry::FcRepresentationItem>(onRelatingElement(*this));
  if (!target || !item) return;
  FcDrawParams drawParams(*target);
  drawParams.skipExpensiveClipping = params.skipExpensiveClipping;
  target->drawConstRepresentationItem(
      std::static_pointer_cast<const geometry::FcRepresentationItem>(item->shared_from_this()),
      drawParams, generate::draw::SurfaceDrawType::Surface);
}

}  // namespace qor::fc::resource::geometricconstraint
