#include "Fc/Resource/GeometricModel/FcBoundingBox.h"

#include "Fc/Resource/Geometry/FcCartesianPoint.h"

namespace qor::fc::resource::geometricmodel {

void FcBoundingBox::draw(const FcDrawParams& /*params*/) const {}

void FcBoundingBox::transform(const math::Matrix& matrix) {
  const std::optional<math::Extent> box = extent();
  if (!box || matrix.isIdentity()) return;
  const math::Extent moved = box->transformExtent(matrix);
  m_Corner = geometry::makePoint(moved.minimum());
  m_XDim = moved.size().x;
  m_YDim = moved.size().y;
  m_ZDim = moved.size().z;
}

std::optional<math::Extent> FcBoundingBox::boundingBox(const FcParams& /*params*/) const {
  return extent();
}

std::optional<math::Extent> FcBoundingBox::extent() const {
  if (!m_Corner) return std::nullopt;
  const math::Point3d corner = m_Corner->point();
  return math::Extent(corner, corner + math::Vector3d(m_XDim, m_YDim, m_ZDim));
}

}  // namespace qor::fc::resource::geometricmodel
