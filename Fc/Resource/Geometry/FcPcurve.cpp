#include "Fc/Resource/Geometry/FcPcurve.h"

#include "Fc/Resource/Geometry/CurveNesting.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcPcurve::parametricSegments() const {
  const CurveNesting nesting(*this);
  if (!nesting || !ReferenceCurve()) return {};
  return ReferenceCurve()->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
