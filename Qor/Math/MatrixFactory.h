#pragma once

#include <optional>
#include <vector>

#include "Qor/Math/Matrix.h"

namespace qor::math::_3d {

class QOR_API MatrixFactory {
 public:
  /// The frame of a planar ring of points: origin at the first one, X axis towards the one that is
  /// furthest from it, and Z such that they run counter-clockwise; axes of length 1 at right
  /// angles. Points that leave the plane give that of their mean normal. Empty when they span none:
  /// all within the length tolerance of one line, or not finite. Linear in the number of points.
  static std::optional<Matrix> fromPoints(const std::vector<Point>& points);
};

}  // namespace qor::math::_3d
