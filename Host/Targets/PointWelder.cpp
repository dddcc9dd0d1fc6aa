#include "Host/Targets/PointWelder.h"

#include <cmath>
#include <limits>

namespace qor::host::targets {

namespace {

constexpr std::uint32_t noPlace = std::numeric_limits<std::uint32_t>::max();
constexpr double cellPerTolerance = 64;  // few points lie near the edge of their cell

}  // namespace

std::size_t PointWelder::CellHash::operator()(const Cell& cell) const {
  std::size_t hash = 0;
  for (const double number : cell)
    hash = (hash ^ std::hash<double>()(number)) * 0x9E3779B97F4A7C15ull;
  return hash ^ (hash >> 32);
}

PointWelder::Cell PointWelder::cellOf(const math::Point3d& point) const {
  const double size = m_tolerance * cellPerTolerance;
  // Adding 0 makes a positive zero of a negative one.
  return {std::floor(point.x / size) + 0.0, std::floor(point.y / size) + 0.0,
          std::floor(point.z / size) + 0.0};
}

std::uint32_t PointWelder::findIn(const Cell& cell, const math::Point3d& point) const {
  const auto found = m_lastInCell.find(cell);
  std::uint32_t number = found == m_lastInCell.end() ? noPlace : found->second;
  while (number != noPlace) {
    const math::Point3d& other = m_places[number].point;
    if (std::abs(other.x - point.x) <= m_tolerance && std::abs(other.y - point.y) <= m_tolerance &&
        std::abs(other.z - point.z) <= m_tolerance)
      return number;
    number = m_places[number].nextInCell;
  }
  return noPlace;
}

/// Looks into the cells that the tolerance reaches: one, but near the edge of a cell.
std::uint32_t PointWelder::findNear(const math::Point3d& point) const {
  const double t = m_tolerance;
  const Cell low = cellOf({point.x - t, point.y - t, point.z - t});
  const Cell high = cellOf({point.x + t, point.y + t, point.z + t});
  for (int corner = 0; corner < 8; ++corner) {
    Cell cell = low;
    bool isNew = true;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      if (!(corner >> axis & 1)) continue;
      isNew = isNew && low[axis] != high[axis];
      cell[axis] = high[axis];
    }
    if (!isNew) continue;
    if (const std::uint32_t number = findIn(cell, point); number != noPlace) return number;
  }
  return noPlace;
}

std::uint32_t PointWelder::numberOf(const math::Point3d& point) {
  if (const std::uint32_t number = findNear(point); number != noPlace) return number;
  const auto number = static_cast<std::uint32_t>(m_places.size());
  const auto [entry, isFirst] = m_lastInCell.try_emplace(cellOf(point), number);
  m_places.push_back({point, isFirst ? noPlace : entry->second});
  entry->second = number;
  return number;
}

}  // namespace qor::host::targets
