#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "Fc/Data.h"
#include "Host/StepFile/InstanceTable.h"
#include "Host/StepFile/NumberMap.h"

namespace qor::host::step {

/// The order in which the entities of a model are written, and the number that each gets.
class EntityNumbers {
 public:
  /// `known` are numbers to keep; see `WriteOptions`.
  EntityNumbers(const fc::Data& data, std::span<const NumberedEntity> known);

  /// An entity that has none yet, since the model doesn't list it, comes last and gets the next
  /// one.
  std::uint64_t numberOf(const fc::FcBase& entity);

  /// Nothing for an entity that has none yet.
  std::optional<std::uint64_t> find(const fc::FcBase& entity) const;

  /// Grows while `numberOf` meets entities that aren't listed.
  std::size_t size() const { return m_order.size(); }
  const fc::FcBase& entity(std::size_t position) const {
    return *m_entities[m_order[position]].entity;
  }
  std::uint64_t number(std::size_t position) const { return m_entities[m_order[position]].number; }

 private:
  struct Numbered {
    const fc::FcBase* entity;
    std::uint64_t number;  ///< 0 for none yet
  };

  void add(const fc::FcBase& entity);
  void order(std::uint32_t index, std::uint64_t number);

  NumberMap m_indices;
  std::vector<Numbered> m_entities;
  std::vector<std::uint32_t> m_order;
  std::uint64_t m_next = 1;
};

}  // namespace qor::host::step
