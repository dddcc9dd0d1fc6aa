#include "Fc/Resource/Geometry/FcSegmentedReferenceCurve.h"

namespace qor::fc::resource::geometry {

bool FcSegmentedReferenceCurve::isClosed(const FcParams& /*params*/) const { return false; }

bool FcSegmentedReferenceCurve::is2d() const { return false; }

std::optional<std::vector<math::Point2d>> FcSegmentedReferenceCurve::curve2d(const FcParams& params,
                                                                             const Trim& trim1,
                                                                             const Trim& trim2,
                                                                             bool reverse) const {
  return FcCurve::curve2d(params, trim1, trim2, reverse);
}

std::vector<math::Point3d> FcSegmentedReferenceCurve::curveGet(const FcParams& params,
                                                               const Trim& trim1, const Trim& trim2,
                                                               bool reverse) const {
  return FcCurve::curveGet(params, trim1, trim2, reverse);
}

}  // namespace qor::fc::resource::geometry
