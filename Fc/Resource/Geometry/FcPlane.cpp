#include "Fc/Resource/Geometry/FcPlane.h"

#include "Fc/Resource/Expect.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

namespace qor::fc::resource::geometry {

using math::Matrix;

void FcPlane::transform(const Matrix& matrix) {
  if (matrix.isIdentity()) return;
  if (!expectThat(Position() != nullptr,
                  "Position() of plane is not set. Will assume standard coordinate system now.",
                  "qor::fc::resource::geometry::FcPlane::transform", __LINE__))
    setPosition(makePlacement(Matrix()));
  if (matrix.isMirror()) {
    const Matrix moved = Position()->placementGet() * matrix;
    Position()->setPlacement({-moved.x(), moved.y(), moved.z(), moved.origin()});
  } else {
    Position()->transform(matrix);
  }
}

}  // namespace qor::fc::resource::geometry
