#include "Fc/Resource/Geometry/FcSpiral.h"

#include "Fc/Resource/Report.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcSpiral::parametricSegments() const {
  report("FcSpiral not implemented (new in IFC 4.3)",
         "qor::fc::resource::geometry::FcSpiral::parametricSegments", __LINE__);
  return {};
}

}  // namespace qor::fc::resource::geometry
