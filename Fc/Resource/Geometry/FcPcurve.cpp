#include "Fc/Resource/Geometry/FcPcurve.h"

#include "Fc/Model/Nesting.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcPcurve::parametricSegments() const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting || !ReferenceCurve()) return {};
  return ReferenceCurve()->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
