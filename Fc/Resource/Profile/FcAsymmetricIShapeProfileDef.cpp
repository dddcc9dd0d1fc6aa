#include "Fc/Resource/Profile/FcAsymmetricIShapeProfileDef.h"

#include <algorithm>

#include "Fc/Model/Report.h"
#include "Fc/Resource/Profile/IShapePath.h"

namespace qor::fc::resource::profile {

std::shared_ptr<geometry::FcIndexedPolyCurve>
FcAsymmetricIShapeProfileDef::generateIndexedPolycurve() const {
  if (!TopFlangeThickness())
    report(
        *this,
        "Optional for historic reasons, should be provided. Bottom flange thickness wil lbe used");
  const double bottom = BottomFlangeThickness();
  const double top = TopFlangeThickness() ? TopFlangeThickness()->value() : bottom;
  return iShapePath(OverallDepth(), WebThickness(),
                    {BottomFlangeWidth(), bottom, BottomFlangeFilletRadius().value_or(0.0)},
                    {TopFlangeWidth(), top, TopFlangeFilletRadius().value_or(0.0)})
      .placedAt(validPosition());
}

std::optional<math::Extent2d> FcAsymmetricIShapeProfileDef::doGetPlanarBox(
    const FcParams& /*params*/) const {
  const double xHalf = std::max<double>(BottomFlangeWidth(), TopFlangeWidth()) / 2;
  const double yHalf = OverallDepth() / 2;
  return math::Extent2d({-xHalf, -yHalf}, {xHalf, yHalf});
}

}  // namespace qor::fc::resource::profile
