#include "Fc/Resource/Geometry/FcSpiral.h"

#include "Fc/Resource/Geometry/GeometryAssert.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcSpiral::parametricSegments() const {
  reportBroken("FcSpiral not implemented (new in IFC 4.3)", "FcSpiral::parametricSegments",
               __LINE__);
  return {};
}

}  // namespace qor::fc::resource::geometry
