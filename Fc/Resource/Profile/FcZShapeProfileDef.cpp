#include "Fc/Resource/Profile/FcZShapeProfileDef.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcZShapeProfileDef::generateIndexedPolycurve() const {
  const double depth = Depth();
  const double width = FlangeWidth();
  const double web = WebThickness();
  const double flange = FlangeThickness();
  const double fillet = FilletRadius().value_or(0.0);
  const double edge = EdgeRadius().value_or(0.0);
  const bool roundEdges = edge > 0 && flange >= edge;
  const double ledge = width - web - edge - fillet;

  // Half a turn around the origin makes the upper half of the lower one.
  ProfilePath path(-web / 2, -depth / 2);
  for (const double side : {1.0, -1.0}) {
    path.line(side * width, 0);
    if (roundEdges) {
      if (flange > edge) path.line(0, side * (flange - edge));
      path.leftTurn(edge, -side, side);
    } else {
      path.line(0, side * flange);
    }
    path.line(-side * ledge, 0).rightTurn(fillet, -side, side);
    if (side > 0) path.line(0, depth - flange - fillet);
  }
  return path.placedAt(validPosition());
}

std::optional<math::Extent2d> FcZShapeProfileDef::doGetPlanarBox(const FcParams& /*params*/) const {
  return boxAroundPosition(FlangeWidth() - WebThickness() / 2, Depth() / 2);
}

}  // namespace qor::fc::resource::profile
