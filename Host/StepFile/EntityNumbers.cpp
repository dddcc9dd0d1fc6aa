#include "Host/StepFile/EntityNumbers.h"

#include <algorithm>

namespace qor::host::step {

namespace {

std::uint64_t keyOf(const fc::FcBase& entity) { return reinterpret_cast<std::uintptr_t>(&entity); }

NumberMap listedIn(const fc::Data& data) {
  NumberMap listed;
  listed.reserve(data.size());
  for (const std::shared_ptr<fc::FcBase>& entity : data.allEntities())
    listed.insert(keyOf(*entity), 0);
  return listed;
}

}  // namespace

EntityNumbers::EntityNumbers(const fc::Data& data, std::span<const NumberedEntity> known) {
  m_positions.reserve(data.size());
  m_entities.reserve(data.size());
  m_numbers.reserve(data.size());
  if (!known.empty()) {
    const NumberMap listed = listedIn(data);
    for (const NumberedEntity& instance : known) {
      const bool isListed =
          instance.entity && listed.find(keyOf(*instance.entity)) != NumberMap::none;
      if (isListed) add(*instance.entity, instance.number);
    }
  }
  for (const std::shared_ptr<fc::FcBase>& entity : data.allEntities()) numberOf(*entity);
}

void EntityNumbers::add(const fc::FcBase& entity, std::uint64_t number) {
  if (!m_positions.insert(keyOf(entity), static_cast<std::uint32_t>(m_entities.size()))) return;
  m_entities.push_back(&entity);
  m_numbers.push_back(number);
  m_next = std::max(m_next, number + 1);
}

std::uint64_t EntityNumbers::numberOf(const fc::FcBase& entity) {
  const std::uint32_t position = m_positions.find(keyOf(entity));
  if (position != NumberMap::none) return m_numbers[position];
  add(entity, m_next);
  return m_numbers.back();
}

}  // namespace qor::host::step
