#include "Fc/ComplexGeometry/Bridge/PointMerger.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "Qor/Math/Epsilon.h"

namespace qor::fc {
namespace {

constexpr double kCellSize = 1024;  // tolerances
constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

}  // namespace

std::size_t PointMerger::CellHash::operator()(const Cell& cell) const {
  std::uint64_t hash = 0;
  for (const std::int64_t part : {cell.x, cell.y, cell.z})
    hash = (hash ^ static_cast<std::uint64_t>(part)) * 0x9E3779B97F4A7C15u;
  return static_cast<std::size_t>(hash ^ (hash >> 32));
}

PointMerger::PointMerger(std::vector<math::Point3d>& points)
    : m_points(points), m_tolerance(math::Epsilon::current().length) {}

std::int64_t PointMerger::cellOf(double coordinate) const {
  const double cell = std::floor(coordinate / (kCellSize * m_tolerance));
  constexpr double limit = 1e18;  // not a number, and what no cell number holds, share a cell
  return std::abs(cell) < limit ? static_cast<std::int64_t>(cell) : 0;
}

bool PointMerger::isNear(const math::Point3d& a, const math::Point3d& b) const {
  return std::abs(a.x - b.x) <= m_tolerance && std::abs(a.y - b.y) <= m_tolerance &&
         std::abs(a.z - b.z) <= m_tolerance;
}

std::uint32_t PointMerger::indexOf(const math::Point3d& point) {
  const double reach = 2 * m_tolerance;  // beyond the tolerance, so that rounding loses nobody
  const Cell low{cellOf(point.x - reach), cellOf(point.y - reach), cellOf(point.z - reach)};
  const Cell high{cellOf(point.x + reach), cellOf(point.y + reach), cellOf(point.z + reach)};
  std::uint32_t found = kNone;
  for (std::int64_t x = low.x; x <= high.x; ++x) {
    for (std::int64_t y = low.y; y <= high.y; ++y) {
      for (std::int64_t z = low.z; z <= high.z; ++z) {
        const auto cell = m_cells.find({x, y, z});
        if (cell == m_cells.end()) continue;
        for (const std::uint32_t index : cell->second)
          if (index < found && isNear(m_points[index], point)) found = index;
      }
    }
  }
  if (found != kNone) return found;
  const auto index = static_cast<std::uint32_t>(m_points.size());
  m_points.push_back(point);
  m_cells[{cellOf(point.x), cellOf(point.y), cellOf(point.z)}].push_back(index);
  return index;
}

}  // namespace qor::fc
