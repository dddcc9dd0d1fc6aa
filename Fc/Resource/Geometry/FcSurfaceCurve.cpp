#include "Fc/Resource/Geometry/FcSurfaceCurve.h"

#include "Fc/Model/Nesting.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcSurfaceCurve::parametricSegments() const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting || !Curve3D()) return {};
  return Curve3D()->parametricSegments();
}

}  // namespace qor::fc::resource::geometry
