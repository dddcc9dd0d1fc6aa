#include "Fc/Resource/GeometricModel/TaperedProfiles.h"

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcTaperedCurveDiscretization.h"
#include "Fc/Resource/Profile/FcProfileDef.h"

namespace qor::fc::resource::geometricmodel {

std::optional<TaperedProfiles> taperedProfiles(const profile::FcProfileDef& start,
                                               const profile::FcProfileDef& end,
                                               const FcParams& params) {
  // Both evaluations ask this one object, which remembers the first one's radii for the second.
  FcParams evaluation(params, geometry::FcTaperedCurveDiscretization(params.curveDiscretization()));
  auto& radii =
      static_cast<geometry::FcTaperedCurveDiscretization&>(evaluation.curveDiscretization());
  radii.collecting = true;
  TaperedProfiles result;
  result.start = start.closedProfileWithEnforcedOrientation(evaluation, true);
  if (result.start.empty()) return std::nullopt;
  radii.collecting = false;
  radii.nextRadius = 0;
  result.end = end.closedProfileWithEnforcedOrientation(evaluation, true);
  if (result.end.size() != result.start.size()) return std::nullopt;
  return result;
}

}  // namespace qor::fc::resource::geometricmodel
