#include "Fc/Resource/Geometry/FcTaperedCurveDiscretization.h"

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometry {

std::size_t FcTaperedCurveDiscretization::numberOfCircleSegments(double radius) const {
  if (collecting)
    radii.push_back(radius);
  else if (requireThat(nextRadius < radii.size(),
                       "Number of collected radii is lower than radii used in seconds run"))
    radius = radii[nextRadius++];
  return CurveDiscretization::numberOfCircleSegments(radius);
}

std::unique_ptr<math::CurveDiscretization> FcTaperedCurveDiscretization::copy() const {
  return std::make_unique<FcTaperedCurveDiscretization>(*this);
}

}  // namespace qor::fc::resource::geometry
