#include "Host/StepFile/EntityNumbers.h"

#include <algorithm>

namespace qor::host::step {

namespace {

std::uint64_t keyOf(const fc::FcBase& entity) { return reinterpret_cast<std::uintptr_t>(&entity); }

}  // namespace

EntityNumbers::EntityNumbers(const fc::Data& data, std::span<const NumberedEntity> known) {
  m_indices.reserve(data.size());
  m_entities.reserve(data.size());
  m_order.reserve(data.size());
  for (const std::shared_ptr<fc::FcBase>& entity : data.allEntities()) add(*entity);
  for (const NumberedEntity& instance : known) {
    const std::uint32_t index = instance.entity && instance.number != 0
                                    ? m_indices.find(keyOf(*instance.entity))
                                    : NumberMap::none;
    if (index != NumberMap::none) order(index, instance.number);
  }
  for (std::size_t i = 0; i < m_entities.size(); ++i) order(static_cast<std::uint32_t>(i), m_next);
}

void EntityNumbers::add(const fc::FcBase& entity) {
  if (m_indices.insert(keyOf(entity), static_cast<std::uint32_t>(m_entities.size())))
    m_entities.push_back({&entity, 0});
}

void EntityNumbers::order(std::uint32_t index, std::uint64_t number) {
  if (m_entities[index].number != 0) return;
  m_entities[index].number = number;
  m_order.push_back(index);
  m_next = std::max(m_next, number + 1);
}

std::optional<std::uint64_t> EntityNumbers::find(const fc::FcBase& entity) const {
  const std::uint32_t index = m_indices.find(keyOf(entity));
  return index == NumberMap::none ? std::nullopt : std::optional(m_entities[index].number);
}

std::uint64_t EntityNumbers::numberOf(const fc::FcBase& entity) {
  std::uint32_t index = m_indices.find(keyOf(entity));
  if (index == NumberMap::none) {
    index = static_cast<std::uint32_t>(m_entities.size());
    add(entity);
    order(index, m_next);
  }
  return m_entities[index].number;
}

}  // namespace qor::host::step
