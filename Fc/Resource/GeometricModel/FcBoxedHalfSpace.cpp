#include "Fc/Resource/GeometricModel/FcBoxedHalfSpace.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcBoundingBox.h"
#include "Fc/Resource/Geometry/FcSurface.h"

namespace qor::fc::resource::geometricmodel {

void FcBoxedHalfSpace::transform(const math::Matrix& matrix) {
  if (!BaseSurface() || !Enclosure()) {
    report(
        *this,
        "Assertion failed in FcBoxedHalfSpace::transform: expect both, BaseSurface and Enclosure "
        "to "
        "be given");
    return;
  }
  BaseSurface()->transform(matrix);
  Enclosure()->transform(matrix);
}

}  // namespace qor::fc::resource::geometricmodel
