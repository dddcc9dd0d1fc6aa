#pragma once

#include <array>

#include "Qor/Math/Extent.h"

namespace qor::math::_3d {

/// A box along the axes as a solid with corners.
class QOR_API Bounding {
 public:
  explicit Bounding(const Extent& extent) : m_extent(extent) {}

  const Extent& extent() const { return m_extent; }
  /// This box and `other` are further than the length tolerance apart, or one of them is empty.
  bool isOutside(const Extent& other) const;
  /// The point is further than the length tolerance away, or the box is empty.
  bool isOutside(const Point& point) const { return isOutside(Extent(point, point)); }
  /// X runs fastest, then Y, then Z; from the smallest coordinates to the greatest.
  std::array<Point, 8> getCornerPoints() const;

 private:
  Extent m_extent;
};

}  // namespace qor::math::_3d
