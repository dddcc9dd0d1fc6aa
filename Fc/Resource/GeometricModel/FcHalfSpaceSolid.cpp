#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"

#include <algorithm>
#include <numbers>

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Qor/Math/Bounding.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
std::optional<math::Extent> FcHalfSpaceSolid::boundingBox(const FcParams& /*params*/) const {
  return {};
}

void FcHalfSpaceSolid::transform(const math::Matrix& matrix) {
  if (matrix.isIdentity()) return;
  if (BaseSurface()) return BaseSurface()->transform(matrix);
  report(*this, "Assertion failed in FcHalfSpaceSolid::transform: expect BaseSurface to be given");
}

std::optional<FcHalfSpaceSolid::OcRepresentationData> FcHalfSpaceSolid::setupOcRepresentationData()
    const {
  const auto* plane = fcCast<geometry::FcPlane>(BaseSurface().get());
  if (!plane) {
    report(*this, "Expect BaseSurface to be of type FcPlane.");
    return {};
  }
  math::Matrix frame;
  if (plane->Position()) {
    frame = plane->Position()->placementGet();
  } else {
    report(*this,
           "Position() of BaseSurface() is not set. Will assume standard coordinate system now.");
  }
  return OcRepresentationData{frame.origin(), AgreementFlag() ? frame.z() * -1 : frame.z()};
}

// That of the plane, with Z into the material.
std::optional<math::Matrix> FcHalfSpaceSolid::materialFrame() const {
  const auto* plane = fcCast<geometry::FcPlane>(BaseSurface().get());
  if (!plane || !plane->Position()) return {};
  const math::Matrix position = plane->Position()->placementGet();
  if (!AgreementFlag()) return position;
  return math::Matrix::createXRotate(std::numbers::pi) * position;
}

bool FcHalfSpaceSolid::isAwayFrom(const math::Extent& box) const {
  const auto frame = materialFrame();
  return frame &&
         box.transformExtent(frame->inverse()).maximum().z <= math::Epsilon::current().length;
}

}  // namespace qor::fc::resource::geometricmodel
