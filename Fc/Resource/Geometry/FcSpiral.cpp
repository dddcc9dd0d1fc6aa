#include "Fc/Resource/Geometry/FcSpiral.h"

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcSpiral::parametricSegments() const {
  report(*this, "FcSpiral not implemented (new in IFC 4.3)");
  return {};
}

}  // namespace qor::fc::resource::geometry
