#include "Fc/Resource/GeometricModel/FcAdvancedBrepWithVoids.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Topology/FcClosedShell.h"

namespace qor::fc::resource::geometricmodel {

void FcAdvancedBrepWithVoids::draw(const FcDrawParams& params) const {
  report(*this, "Not implemented for FcAdvancedBrepWithVoids, voids will not be drawn");
  FcAdvancedBrepWithVoidsAttributes::draw(params);
}

void FcAdvancedBrepWithVoids::transform(const math::Matrix& matrix) {
  transformWithVoids(m_Voids, matrix);
}

}  // namespace qor::fc::resource::geometricmodel
