#include "Fc/Resource/Profile/FcCShapeProfileDef.h"

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve> FcCShapeProfileDef::generateIndexedPolycurve() const {
  const double depth = Depth();
  const double width = Width();
  const double wall = WallThickness();
  const double girth = Girth();
  const double fillet = InternalFilletRadius().value_or(0.0);
  const double lip = girth - wall - fillet;
  const double inside = width - 2 * wall - 2 * fillet;
  return ProfilePath(width / 2, girth - depth / 2)
      .line(-wall, 0)
      .line(0, -lip)
      .rightTurn(fillet, -1, -1)
      .line(-inside, 0)
      .rightTurn(fillet, -1, 1)
      .line(0, depth - 2 * wall - 2 * fillet)
      .rightTurn(fillet, 1, 1)
      .line(inside, 0)
      .rightTurn(fillet, 1, -1)
      .line(0, -lip)
      .line(wall, 0)
      .line(0, girth - fillet)
      .leftTurn(fillet, -1, 1)
      .line(-(width - 2 * fillet), 0)
      .leftTurn(fillet, -1, -1)
      .line(0, -(depth - 2 * fillet))
      .leftTurn(fillet, 1, -1)
      .line(width - 2 * fillet, 0)
      .leftTurn(fillet, 1, 1)
      .placedAt(validPosition());
}

std::optional<math::Extent2d> FcCShapeProfileDef::doGetPlanarBox(const FcParams& /*params*/) const {
  return boxAroundPosition(Width() / 2, Depth() / 2);
}

}  // namespace qor::fc::resource::profile
