#include "Fc/Resource/Profile/FcLShapeProfileDef.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcLShapeProfileDef::generateIndexedPolycurve() const {
  const double depth = Depth();
  const double width = Width().value_or(Depth());
  const double thickness = Thickness();
  const double fillet = FilletRadius().value_or(0.0);
  const double edge = EdgeRadius().value_or(0.0);
  const bool roundEdges = edge > 0 && thickness >= edge;
  ProfilePath path(-width / 2, -depth / 2);
  path.line(width, 0);
  if (roundEdges) {
    if (thickness > edge) path.line(0, thickness - edge);
    path.leftTurn(edge, -1, 1);
  } else {
    path.line(0, thickness);
  }
  path.line(thickness - width + edge + fillet, 0)
      .rightTurn(fillet, -1, 1)
      .line(0, depth - fillet - edge - thickness);
  if (roundEdges) path.leftTurn(edge, -1, 1);
  if (thickness > edge) path.line(edge - thickness, 0);
  return path.placedAt(validPosition());
}

std::optional<math::Extent2d> FcLShapeProfileDef::doGetPlanarBox(const FcParams& /*params*/) const {
  return boxAroundPosition(Width().value_or(Depth()) / 2, Depth() / 2);
}

}  // namespace qor::fc::resource::profile
