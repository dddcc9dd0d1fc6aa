#include "Fc/Resource/Geometry/FcOffsetCurve.h"

#include "Fc/Resource/Geometry/CurveNesting.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcOffsetCurve::parametricSegments() const {
  const CurveNesting nesting(*this);
  if (!nesting || !BasisCurve()) return {};
  return BasisCurve()->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
