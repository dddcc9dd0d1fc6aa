#include "Fc/Resource/Geometry/FcSegment.h"

#include "Fc/Model/NotImplemented.h"

namespace qor::fc::resource::geometry {

std::vector<math::Point3d> FcSegment::curve(const FcParams& /*params*/) const {
  assertNotImplemented("FcSegment::curve is not implemented for ", *this);
  return {};
}

std::optional<std::vector<math::Point2d>> FcSegment::curve2d(const FcParams& /*params*/) const {
  assertNotImplemented("FcSegment::curve2d is not implemented for ", *this);
  return {};
}

bool FcSegment::is2d() const {
  const FcCurve* parent = parentCurve();
  return parent && parent->is2d();
}

std::vector<std::pair<double, FcCurve::ParameterType>> FcSegment::parametricSegments() const {
  const FcCurve* parent = parentCurve();
  if (!parent) return {};
  return parent->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
