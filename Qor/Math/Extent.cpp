#include "Qor/Math/Extent.h"

#include "Qor/Math/Bounding.h"

namespace qor::math::_3d {

Extent Extent::transformExtent(const Matrix& matrix) const {
  if (!isValid()) return *this;
  Extent result;
  for (const Point& corner : Bounding(*this).getCornerPoints()) result.include(corner * matrix);
  return result;
}

bool Bounding::isOutside(const Extent& other) const {
  if (!m_extent.isValid() || !other.isValid()) return true;
  const double tolerance = Epsilon::current().length;
  const auto apart = [&](double Point::*coordinate) {
    return m_extent.minimum().*coordinate - other.maximum().*coordinate > tolerance ||
           other.minimum().*coordinate - m_extent.maximum().*coordinate > tolerance;
  };
  return apart(&Point::x) || apart(&Point::y) || apart(&Point::z);
}

std::array<Point, 8> Bounding::getCornerPoints() const {
  const Point &a = m_extent.minimum(), &b = m_extent.maximum();
  return {Point(a.x, a.y, a.z), Point(b.x, a.y, a.z), Point(a.x, b.y, a.z), Point(b.x, b.y, a.z),
          Point(a.x, a.y, b.z), Point(b.x, a.y, b.z), Point(a.x, b.y, b.z), Point(b.x, b.y, b.z)};
}

}  // namespace qor::math::_3d
