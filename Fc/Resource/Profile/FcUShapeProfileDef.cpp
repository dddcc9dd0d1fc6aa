#include "Fc/Resource/Profile/FcUShapeProfileDef.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcUShapeProfileDef::generateIndexedPolycurve() const {
  const double depth = Depth();
  const double width = FlangeWidth();
  const double web = WebThickness();
  const double flange = FlangeThickness();
  const double fillet = FilletRadius().value_or(0.0);
  const double edge = EdgeRadius().value_or(0.0);
  const bool roundEdges = edge > 0 && flange >= edge;
  const double ledge = width - web - edge - fillet;

  ProfilePath path(-width / 2, -depth / 2);
  path.line(width, 0);
  if (roundEdges) {
    if (flange > edge) path.line(0, flange - edge);
    path.leftTurn(edge, -1, 1);
  } else {
    path.line(0, flange);
  }
  path.line(-ledge, 0)
      .rightTurn(fillet, -1, 1)
      .line(0, depth - 2 * fillet - 2 * flange)
      .rightTurn(fillet, 1, 1)
      .line(ledge, 0);
  if (roundEdges) {
    path.leftTurn(edge, 1, 1);
    if (flange > edge) path.line(0, flange - edge);
  } else {
    path.line(0, flange);
  }
  path.line(-width, 0);
  return path.placedAt(validPosition());
}

}  // namespace qor::fc::resource::profile
