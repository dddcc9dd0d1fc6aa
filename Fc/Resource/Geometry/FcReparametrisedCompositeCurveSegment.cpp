#include "Fc/Resource/Geometry/FcReparametrisedCompositeCurveSegment.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>>
FcReparametrisedCompositeCurveSegment::parametricSegments() const {
  return {{ParamLength(), FcCurve::ParameterType::length}};
}

}  // namespace qor::fc::resource::geometry
