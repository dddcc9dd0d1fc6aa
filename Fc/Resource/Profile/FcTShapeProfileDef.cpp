#include "Fc/Resource/Profile/FcTShapeProfileDef.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcTShapeProfileDef::generateIndexedPolycurve() const {
  const double depth = Depth();
  const double width = FlangeWidth();
  const double web = WebThickness();
  const double flange = FlangeThickness();
  const double fillet = FilletRadius().value_or(0.0);
  const double flangeEdge = FlangeEdgeRadius().value_or(0.0);
  const double webEdge = WebEdgeRadius().value_or(0.0);
  const bool roundFlange = flangeEdge > 0 && flange >= flangeEdge;
  const bool roundWeb = webEdge > 0 && web / 2 >= webEdge;
  const double ledge = width / 2 - flangeEdge - fillet - web / 2;
  const double leg = depth - flange - fillet - webEdge;

  ProfilePath path(-width / 2, depth / 2);
  if (roundFlange) {
    if (flange > flangeEdge) path.line(0, flangeEdge - flange);
    path.leftTurn(flangeEdge, 1, -1);
  } else {
    path.line(0, -flange);
  }
  path.line(ledge, 0).rightTurn(fillet, 1, -1).line(0, -leg);
  if (roundWeb) {
    path.leftTurn(webEdge, 1, -1);
    if (web / 2 > webEdge) path.line(web - 2 * webEdge, 0);
    path.leftTurn(webEdge, 1, 1);
  } else {
    path.line(web, 0);
  }
  path.line(0, leg).rightTurn(fillet, 1, 1).line(ledge, 0);
  if (roundFlange) {
    path.leftTurn(flangeEdge, 1, 1);
    if (flange > flangeEdge) path.line(0, flange - flangeEdge);
  } else {
    path.line(0, flange);
  }
  return path.placedAt(validPosition());
}

std::optional<math::Extent2d> FcTShapeProfileDef::doGetPlanarBox(const FcParams& /*params*/) const {
  return boxAroundPosition(FlangeWidth() / 2, Depth() / 2);
}

}  // namespace qor::fc::resource::profile
