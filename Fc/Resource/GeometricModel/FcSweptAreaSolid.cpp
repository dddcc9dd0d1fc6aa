#include "Fc/Resource/GeometricModel/FcSweptAreaSolid.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Profile/FcProfileDef.h"

namespace qor::fc::resource::geometricmodel {

void FcSweptAreaSolid::transformProfiles(const math::Matrix2d& matrix) {
  if (SweptArea()) SweptArea()->transform2d(matrix);
}

math::Matrix FcSweptAreaSolid::validPosition() const {
  return Position() ? Position()->placementGet() : math::Matrix();
}

void FcSweptAreaSolid::applyPosition(const FcDrawParams& params) const {
  if (Position())
    params->vTransformationMultiply(Position()->placementGet(), math::MatrixMultiplyOrder::left);
}

}  // namespace qor::fc::resource::geometricmodel
