#include "Fc/Resource/Geometry/FcSurfaceCurve.h"

#include "Fc/Resource/Geometry/CurveNesting.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcSurfaceCurve::parametricSegments() const {
  const CurveNesting nesting(*this);
  if (!nesting || !Curve3D()) return {};
  return Curve3D()->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
