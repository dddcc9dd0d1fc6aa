#include "Fc/Resource/Geometry/FcPolynomialCurve.h"

#include "Fc/Resource/Geometry/GeometryAssert.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcPolynomialCurve::parametricSegments()
    const {
  reportBroken("FcPolynominalCurve not implemented (new in IFC 4.3)",
               "FcPolynomialCurve::parametricSegments", __LINE__);
  return {};
}

}  // namespace qor::fc::resource::geometry
