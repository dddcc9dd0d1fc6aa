#include "Fc/Resource/GeometricModel/FcBoxedHalfSpace.h"

#include "Fc/Resource/GeometricModel/FcBoundingBox.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Fc/Resource/Report.h"

namespace qor::fc::resource::geometricmodel {

void FcBoxedHalfSpace::transform(const math::Matrix& matrix) {
  if (!BaseSurface() || !Enclosure()) {
    report(
        "Assertion failed in FcBoxedHalfSpace::transform: expect both, BaseSurface and Enclosure "
        "to "
        "be given",
        "qor::fc::resource::geometricmodel::FcBoxedHalfSpace::transform", __LINE__);
    return;
  }
  BaseSurface()->transform(matrix);
  Enclosure()->transform(matrix);
}

}  // namespace qor::fc::resource::geometricmodel
