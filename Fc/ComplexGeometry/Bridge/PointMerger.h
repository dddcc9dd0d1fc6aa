#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// Numbers points, counted from 0, so that those at one place get one number: the first one within
/// the length tolerance on each axis.
///
/// The points lie in cells of a grid that is much coarser than the tolerance, so that all but few
/// look into one cell: constant time on average.
class QOR_API PointMerger {
 public:
  /// Appends to `points`, which must outlive this; what is in there already isn't looked at.
  explicit PointMerger(std::vector<math::Point3d>& points);

  std::uint32_t indexOf(const math::Point3d& point);

 private:
  struct Cell {
    std::int64_t x, y, z;
    friend bool operator==(const Cell&, const Cell&) = default;
  };
  struct CellHash {
    std::size_t operator()(const Cell& cell) const;
  };

  std::int64_t cellOf(double coordinate) const;
  bool isNear(const math::Point3d& a, const math::Point3d& b) const;

  std::vector<math::Point3d>& m_points;
  std::unordered_map<Cell, std::vector<std::uint32_t>, CellHash> m_cells;
  double m_tolerance;
};

}  // namespace qor::fc
