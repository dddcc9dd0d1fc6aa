#include "Fc/Resource/GeometricModel/FcFacetedBrepWithVoids.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Topology/FcClosedShell.h"

namespace qor::fc::resource::geometricmodel {

void FcFacetedBrepWithVoids::draw(const FcDrawParams& params) const {
  report(*this, "Not implemented for FcFacetedBrepWithVoids, voids will not be drawn");
  FcFacetedBrepWithVoidsAttributes::draw(params);
}

void FcFacetedBrepWithVoids::transform(const math::Matrix& matrix) {
  transformWithVoids(m_Voids, matrix);
}

}  // namespace qor::fc::resource::geometricmodel
