#include "Fc/Resource/Profile/FcAsymmetricIShapeProfileDef.h"

#include <algorithm>

#include "Fc/Resource/Profile/ProfilePath.h"
#include "Fc/Resource/Report.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve>
FcAsymmetricIShapeProfileDef::generateIndexedPolycurve() const {
  if (!TopFlangeThickness())
    report(
        "Optional for historic reasons, should be provided. Bottom flange thickness wil lbe used",
        "qor::fc::resource::profile::FcAsymmetricIShapeProfileDef::generateIndexedPolycurve",
        __LINE__);
  const double depth = OverallDepth();
  const double bottomWidth = BottomFlangeWidth();
  const double topWidth = TopFlangeWidth();
  const double bottom = BottomFlangeThickness();
  const double top = TopFlangeThickness() ? TopFlangeThickness()->value() : bottom;
  const double bottomFillet = BottomFlangeFilletRadius().value_or(0.0);
  const double topFillet = TopFlangeFilletRadius().value_or(0.0);
  const double bottomLedge = (bottomWidth - WebThickness()) / 2 - bottomFillet;
  const double topLedge = (topWidth - WebThickness()) / 2 - topFillet;
  const double web = depth - (bottom + top + bottomFillet + topFillet);
  return ProfilePath(-bottomWidth / 2, -depth / 2)
      .line(bottomWidth, 0)
      .line(0, bottom)
      .line(-bottomLedge, 0)
      .rightTurn(bottomFillet, -1, 1)
      .line(0, web)
      .rightTurn(topFillet, 1, 1)
      .line(topLedge, 0)
      .line(0, top)
      .line(-topWidth, 0)
      .line(0, -top)
      .line(topLedge, 0)
      .rightTurn(topFillet, 1, -1)
      .line(0, -web)
      .rightTurn(bottomFillet, -1, -1)
      .line(-bottomLedge, 0)
      .placedAt(validPosition());
}

std::optional<math::Extent2d> FcAsymmetricIShapeProfileDef::doGetPlanarBox(
    const FcParams& /*params*/) const {
  const double xHalf = std::max<double>(BottomFlangeWidth(), TopFlangeWidth()) / 2;
  const double yHalf = OverallDepth() / 2;
  return math::Extent2d({-xHalf, -yHalf}, {xHalf, yHalf});
}

}  // namespace qor::fc::resource::profile
