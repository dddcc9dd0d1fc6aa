#include "Fc/Resource/GeometricModel/CoordinateLookup.h"

#include <bit>
#include <cmath>

namespace qor::fc::resource::geometricmodel {

namespace {

math::Point3d pointOf(const std::array<measure::FcLengthMeasure, 3>& coordinate) {
  return {coordinate[0], coordinate[1], coordinate[2]};
}

bool isNumber(const math::Point3d& point) {
  return !std::isnan(point.x) && !std::isnan(point.y) && !std::isnan(point.z);
}

std::uint64_t hashOf(const math::Point3d& point) {
  std::uint64_t hash = 0;
  for (const double value : {point.x, point.y, point.z}) {
    hash ^= std::bit_cast<std::uint64_t>(value + 0.0);  // -0 becomes 0
    hash *= 0x9E3779B97F4A7C15u;
    hash ^= hash >> 32;
  }
  return hash;
}

}  // namespace

std::size_t CoordinateLookup::findOrAppend(Coordinates& coordinates, const math::Point3d& point) {
  follow(coordinates);
  if (isNumber(point)) {
    const std::uint32_t found = m_slots[slotOf(coordinates, point)];
    if (found != empty) return found + std::size_t{1};
  }
  coordinates.push_back({point.x, point.y, point.z});
  m_list = coordinates.data();
  insert(coordinates, static_cast<std::uint32_t>(m_covered++));
  return coordinates.size();
}

void CoordinateLookup::follow(const Coordinates& coordinates) {
  if (m_list != coordinates.data() || coordinates.size() < m_covered || m_slots.empty()) {
    m_list = coordinates.data();
    m_covered = 0;
    m_slots.assign(std::bit_ceil(4 * coordinates.size() + 16), empty);
  }
  while (m_covered < coordinates.size())
    insert(coordinates, static_cast<std::uint32_t>(m_covered++));
}

void CoordinateLookup::insert(const Coordinates& coordinates, std::uint32_t place) {
  if (2 * (std::size_t{place} + 1) > m_slots.size()) growTo(coordinates, 2 * m_slots.size());
  const math::Point3d point = pointOf(coordinates[place]);
  if (!isNumber(point)) return;
  std::uint32_t& slot = m_slots[slotOf(coordinates, point)];
  if (slot == empty) slot = place;
}

void CoordinateLookup::growTo(const Coordinates& coordinates, std::size_t slots) {
  std::vector<std::uint32_t> old(slots, empty);
  old.swap(m_slots);
  for (const std::uint32_t place : old)
    if (place != empty) m_slots[slotOf(coordinates, pointOf(coordinates[place]))] = place;
}

std::size_t CoordinateLookup::slotOf(const Coordinates& coordinates,
                                     const math::Point3d& point) const {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t slot = static_cast<std::size_t>(hashOf(point)) & mask;
  while (m_slots[slot] != empty && !(pointOf(coordinates[m_slots[slot]]) == point))
    slot = (slot + 1) & mask;
  return slot;
}

}  // namespace qor::fc::resource::geometricmodel
