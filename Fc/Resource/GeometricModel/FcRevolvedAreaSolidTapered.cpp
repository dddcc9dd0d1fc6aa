#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolidTapered.h"

#include <numbers>
#include <utility>

#include "Fc/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Resource/Expect.h"
#include "Fc/Resource/GeometricModel/ExtrudedFaceSet.h"
#include "Fc/Resource/GeometricModel/TaperedProfiles.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::Profile2D;

namespace {

constexpr const char* kDrawRevolvedTapered = "qor::fc::resource::geometricmodel::FcRevolvedAreaSolidTapered::draw";

}  // namespace

std::optional<RevolutionAxis> FcRevolvedAreaSolidTapered::checkedAxis(const char* operation) const {
  const double tolerance = math::Epsilon::current().angle;
  auto axis = axisInPlane(operation);
  if (!axis || !hasSweptArea(operation) ||
      !expectThat(EndSweptArea() != nullptr, "End swept area should exist", operation, __LINE__) ||
      !expectThat(Angle() != 0.0, "Angle should exist", operation, __LINE__) ||
      !expectThat(Angle() > tolerance && Angle() <= 2 * std::numbers::pi + tolerance,
                  "Angle should be between 0 (excluding) and 2pi (or 360 deg, including)",
                  operation, __LINE__))
    return std::nullopt;
  return axis;
}

void FcRevolvedAreaSolidTapered::draw(const FcDrawParams& params) const {
  const auto axis = checkedAxis(kDrawRevolvedTapered);
  if (!axis) return;
  const FcParams evaluation(params);
  const auto profiles = taperedProfiles(*SweptArea(), *EndSweptArea(), evaluation);
  if (!profiles) return;
  const generate::draw::TransformationGuard guard(params);
  applyPosition(params);
  for (std::size_t i = 0; i < profiles->start.size(); ++i) {
    const Profile2D& start = profiles->start[i];
    const Profile2D& end = profiles->end[i];
    if (!profilesPair(start, end, kDrawRevolvedTapered)) continue;
    if (auto set =
            taperedRevolvedFaceSet(start, end, *axis, Angle(), evaluation.curveDiscretization()))
      params->polygonalFaceSet(std::move(*set));
  }
}

std::optional<math::Extent> FcRevolvedAreaSolidTapered::boundingBox(const FcParams& params) const {
  constexpr const char* kOperation =
      "qor::fc::resource::geometricmodel::FcRevolvedAreaSolidTapered::boundingBox";
  const auto axis = checkedAxis(kOperation);
  if (!axis) return std::nullopt;
  const auto start = SweptArea()->planarBox(params);
  const auto end = EndSweptArea()->planarBox(params);
  if (!expectThat(start && end, "No planar box", kOperation, __LINE__)) return std::nullopt;
  return boundingBoxFromProfileExtent(start->uniteWith(*end), *axis);
}

void FcRevolvedAreaSolidTapered::transformProfiles(const math::Matrix2d& matrix) {
  if (EndSweptArea()) EndSweptArea()->transform2d(matrix);
  if (EndSweptArea() != SweptArea())
    FcRevolvedAreaSolidTaperedAttributes::transformProfiles(matrix);
}

}  // namespace qor::fc::resource::geometricmodel
