#include "Fc/Resource/Profile/IShapePath.h"

namespace qor::fc::resource::profile {

ProfilePath iShapePath(double depth, double webThickness, const IShapeFlange& bottom,
                       const IShapeFlange& top) {
  const double bottomLedge = (bottom.width - webThickness) / 2 - bottom.fillet;
  const double topLedge = (top.width - webThickness) / 2 - top.fillet;
  const double web = depth - (bottom.thickness + top.thickness + bottom.fillet + top.fillet);
  ProfilePath path(-bottom.width / 2, -depth / 2);
  path.line(bottom.width, 0)
      .line(0, bottom.thickness)
      .line(-bottomLedge, 0)
      .rightTurn(bottom.fillet, -1, 1)
      .line(0, web)
      .rightTurn(top.fillet, 1, 1)
      .line(topLedge, 0)
      .line(0, top.thickness)
      .line(-top.width, 0)
      .line(0, -top.thickness)
      .line(topLedge, 0)
      .rightTurn(top.fillet, 1, -1)
      .line(0, -web)
      .rightTurn(bottom.fillet, -1, -1)
      .line(-bottomLedge, 0);
  return path;
}

}  // namespace qor::fc::resource::profile
