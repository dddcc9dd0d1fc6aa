#include "Fc/Resource/Geometry/FcOffsetCurve.h"

#include "Fc/Model/Nesting.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcOffsetCurve::parametricSegments() const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting || !BasisCurve()) return {};
  return BasisCurve()->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
