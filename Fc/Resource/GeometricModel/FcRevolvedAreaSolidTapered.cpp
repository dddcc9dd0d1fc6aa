#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolidTapered.h"

#include <numbers>
#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/TaperedProfiles.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Shapes/ExtrudedFaceSet.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::Profile2D;

namespace {}  // namespace

std::optional<RevolutionAxis> FcRevolvedAreaSolidTapered::checkedAxis() const {
  const double tolerance = math::Epsilon::current().angle;
  auto axis = axisInPlane();
  if (!axis || !hasSweptArea() ||
      !requireThat(*this, EndSweptArea() != nullptr, "End swept area should exist") ||
      !requireThat(*this, Angle() != 0.0, "Angle should exist") ||
      !requireThat(*this, Angle() > tolerance && Angle() <= 2 * std::numbers::pi + tolerance,
                   "Angle should be between 0 (excluding) and 2pi (or 360 deg, including)"))
    return std::nullopt;
  return axis;
}

void FcRevolvedAreaSolidTapered::draw(const FcDrawParams& params) const {
  const auto axis = checkedAxis();
  if (!axis) return;
  const FcParams evaluation(params);
  const auto profiles = taperedProfiles(*SweptArea(), *EndSweptArea(), evaluation);
  if (!profiles) return;
  const generate::draw::TransformationGuard guard(params);
  applyPosition(params);
  for (std::size_t i = 0; i < profiles->start.size(); ++i) {
    const Profile2D& start = profiles->start[i];
    const Profile2D& end = profiles->end[i];
    if (!profilesPair(start, end)) continue;
    if (auto set =
            taperedRevolvedFaceSet(start, end, *axis, Angle(), evaluation.curveDiscretization()))
      params->polygonalFaceSet(std::move(*set));
  }
}

std::optional<math::Extent> FcRevolvedAreaSolidTapered::boundingBox(const FcParams& params) const {
  const auto axis = checkedAxis();
  if (!axis) return std::nullopt;
  const auto start = SweptArea()->planarBox(params);
  const auto end = EndSweptArea()->planarBox(params);
  if (!requireThat(*this, start && end, "No planar box")) return std::nullopt;
  return boundingBoxFromProfileExtent(start->uniteWith(*end), *axis);
}

void FcRevolvedAreaSolidTapered::transformProfiles(const math::Matrix2d& matrix) {
  if (EndSweptArea()) EndSweptArea()->transform2d(matrix);
  if (EndSweptArea() != SweptArea())
    FcRevolvedAreaSolidTaperedAttributes::transformProfiles(matrix);
}

}  // namespace qor::fc::resource::geometricmodel
