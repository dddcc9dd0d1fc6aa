#include "Fc/Resource/Geometry/FcBSplineCurve.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcBSplineCurve::parametricSegments() const {
  return {{1.0, ParameterType::length}};
}

}  // namespace qor::fc::resource::geometry
