#include "Fc/Resource/Profile/FcIShapeProfileDef.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcIShapeProfileDef::generateIndexedPolycurve() const {
  const double width = OverallWidth();
  const double depth = OverallDepth();
  const double flange = FlangeThickness();
  const double fillet = FilletRadius().value_or(0.0);
  const double ledge = (width - WebThickness()) / 2 - fillet;
  const double web = depth - 2 * (fillet + flange);
  return ProfilePath(-width / 2, -depth / 2)
      .line(width, 0)
      .line(0, flange)
      .line(-ledge, 0)
      .rightTurn(fillet, -1, 1)
      .line(0, web)
      .rightTurn(fillet, 1, 1)
      .line(ledge, 0)
      .line(0, flange)
      .line(-width, 0)
      .line(0, -flange)
      .line(ledge, 0)
      .rightTurn(fillet, 1, -1)
      .line(0, -web)
      .rightTurn(fillet, -1, -1)
      .line(-ledge, 0)
      .placedAt(validPosition());
}

std::optional<math::Extent2d> FcIShapeProfileDef::doGetPlanarBox(const FcParams& /*params*/) const {
  return boxAroundPosition(OverallWidth() / 2, OverallDepth() / 2);
}

}  // namespace qor::fc::resource::profile
