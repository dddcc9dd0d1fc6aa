#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoids.h"

#include "Fc/Resource/Report.h"
#include "Fc/Resource/Topology/FcClosedShell.h"

namespace qor::fc::resource::geometricmodel {

void FcFacetedBrepWithVoids::draw(const FcDrawParams& params) const {
  report("Not implemented for FcFacetedBrepWithVoids, voids will not be drawn",
         "qor::fc::resource::geometricmodel::FcFacetedBrepWithVoids::draw", __LINE__);
  FcFacetedBrepWithVoidsAttributes::draw(params);
}

void FcFacetedBrepWithVoids::transform(const math::Matrix& matrix) {
  transformWithVoids(m_Voids, matrix);
}

}  // namespace qor::fc::resource::geometricmodel
