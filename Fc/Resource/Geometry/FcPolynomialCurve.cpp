#include "Fc/Resource/Geometry/FcPolynomialCurve.h"

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcPolynomialCurve::parametricSegments()
    const {
  report(*this, "FcPolynominalCurve not implemented (new in IFC 4.3)");
  return {};
}

}  // namespace qor::fc::resource::geometry
