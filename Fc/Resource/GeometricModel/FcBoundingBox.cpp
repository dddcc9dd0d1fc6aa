#include "Fc/Resource/GeometricModel/FcBoundingBox.h"

#include "Fc/Resource/Geometry/FcCartesianPoint.h"

namespace qor::fc::resource::geometricmodel {

void FcBoundingBox::draw(const FcDrawParams& /*params*/) const {}

std::optional<math::Extent> FcBoundingBox::boundingBox(const FcParams& /*params*/) const {
  return extent();
}

void FcBoundingBox::transform(const math::Matrix& matrix) {
  const auto before = extent();
  if (!before || matrix.isIdentity()) return;
  const auto after = before->transformExtent(matrix);
  if (!after.isValid()) return;
  const auto& corner = after.minimum();
  Corner()->setCoordinates({corner.x, corner.y, corner.z});
  setXDim(after.size().x);
  setYDim(after.size().y);
  setZDim(after.size().z);
}

std::optional<math::Extent> FcBoundingBox::extent() const {
  if (!Corner()) return {};
  const auto& at = Corner()->Coordinates();
  const math::Point3d corner(at[0], at[1], at[2]);
  return math::Extent(corner,
                      corner + math::Vector3d(XDim().value(), YDim().value(), ZDim().value()));
}

}  // namespace qor::fc::resource::geometricmodel
