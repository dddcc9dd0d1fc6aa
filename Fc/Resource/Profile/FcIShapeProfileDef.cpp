#include "Fc/Resource/Profile/FcIShapeProfileDef.h"

#include "Fc/Resource/Profile/IShapePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcIShapeProfileDef::generateIndexedPolycurve() const {
  const IShapeFlange flange{OverallWidth(), FlangeThickness(), FilletRadius().value_or(0.0)};
  return iShapePath(OverallDepth(), WebThickness(), flange, flange).placedAt(validPosition());
}

std::optional<math::Extent2d> FcIShapeProfileDef::doGetPlanarBox(const FcParams& /*params*/) const {
  return boxAroundPosition(OverallWidth() / 2, OverallDepth() / 2);
}

}  // namespace qor::fc::resource::profile
