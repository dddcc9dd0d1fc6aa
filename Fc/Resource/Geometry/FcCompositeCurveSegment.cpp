#include "Fc/Resource/Geometry/FcCompositeCurveSegment.h"

#include <algorithm>

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometry {

std::vector<math::Point3d> FcCompositeCurveSegment::curve(const FcParams& params) const {
  if (!requireThat(*this, ParentCurve() != nullptr,
                   "Assertion failed: Expect to have ParentCurve set when requesting curve()"))
    return {};
  auto points = ParentCurve()->curveGet(params, {}, {}, false);
  if (!SameSense()) std::reverse(points.begin(), points.end());
  return points;
}

std::optional<std::vector<math::Point2d>> FcCompositeCurveSegment::curve2d(
    const FcParams& params) const {
  if (!requireThat(*this, ParentCurve() != nullptr,
                   "Assertion failed: Expect to have ParentCurve set when requesting curve2d()"))
    return {};
  auto points = ParentCurve()->curve2d(params, {}, {}, false);
  if (points && !SameSense()) std::reverse(points->begin(), points->end());
  return points;
}

}  // namespace qor::fc::resource::geometry
