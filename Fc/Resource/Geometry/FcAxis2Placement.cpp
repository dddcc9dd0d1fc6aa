#include "Fc/Resource/Geometry/FcAxis2Placement.h"

#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

namespace qor::fc::resource::geometry {

math::Matrix FcAxis2Placement::transformationGet() const {
  if (type() == Types::Axis2Placement3D && Axis2Placement3D())
    return Axis2Placement3D()->placementGet();
  if (type() == Types::Axis2Placement2D && Axis2Placement2D())
    return Axis2Placement2D()->placementGet();
  return {};
}

void FcAxis2Placement::setTransformation(const math::Matrix& matrix) {
  *this = FcAxis2Placement(makePlacement(matrix));
}

}  // namespace qor::fc::resource::geometry
