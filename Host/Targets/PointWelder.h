#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::host::targets {

/// Numbers places in space such that points nearer to each other than a tolerance get the same
/// number; far enough apart means different numbers. Near points are found in a grid of cells, in
/// constant time on average.
class PointWelder {
 public:
  /// The tolerance for the corners of faces that were computed apart and meet all the same.
  static constexpr double samePlace = 1e-6;

  /// `tolerance` in metres, above 0, along each axis. Coordinates must be finite.
  explicit PointWelder(double tolerance) : m_tolerance(tolerance) {}

  /// The number of the place, from 0 on.
  std::uint32_t numberOf(const math::Point3d& point);
  std::size_t size() const { return m_places.size(); }

 private:
  using Cell = std::array<double, 3>;  // whole numbers, of any size
  struct CellHash {
    std::size_t operator()(const Cell& cell) const;
  };
  struct Place {
    math::Point3d point;
    std::uint32_t nextInCell;
  };

  Cell cellOf(const math::Point3d& point) const;
  std::uint32_t findIn(const Cell& cell, const math::Point3d& point) const;
  std::uint32_t findNear(const math::Point3d& point) const;

  double m_tolerance;
  std::unordered_map<Cell, std::uint32_t, CellHash> m_lastInCell;
  std::vector<Place> m_places;
};

}  // namespace qor::host::targets
