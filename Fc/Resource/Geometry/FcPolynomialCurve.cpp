#include "Fc/Resource/Geometry/FcPolynomialCurve.h"

#include "Fc/Resource/Report.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcPolynomialCurve::parametricSegments()
    const {
  report("FcPolynominalCurve not implemented (new in IFC 4.3)",
         "qor::fc::resource::geometry::FcPolynomialCurve::parametricSegments", __LINE__);
  return {};
}

}  // namespace qor::fc::resource::geometry
