#include "Fc/Resource/Geometry/FcPlane.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

namespace qor::fc::resource::geometry {

using math::Matrix;

void FcPlane::transform(const Matrix& matrix) {
  if (matrix.isIdentity()) return;
  if (!requireThat(*this, Position() != nullptr,
                   "Position() of plane is not set. Will assume standard coordinate system now."))
    setPosition(makePlacement(Matrix()));
  if (matrix.isMirror()) {
    const Matrix moved = Position()->placementGet() * matrix;
    Position()->setPlacement({-moved.x(), moved.y(), moved.z(), moved.origin()});
  } else {
    Position()->transform(matrix);
  }
}

}  // namespace qor::fc::resource::geometry
