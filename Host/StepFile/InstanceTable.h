#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "Fc/FcBase.h"
#include "Host/StepFile/NumberMap.h"

namespace qor::host::step {

/// An entity and the number that it has in a file.
struct NumberedEntity {
  std::uint64_t number;
  std::shared_ptr<fc::FcBase> entity;  ///< null for an instance that was left out
};

/// The instances of a file in its order, and the way from a number to its entity.
///
/// First `add` all of them, then `index` once, then `find`.
class InstanceTable {
 public:
  void add(std::uint64_t number, std::shared_ptr<fc::FcBase> entity) {
    m_instances.push_back({number, std::move(entity)});
  }

  /// Calls back with the position of each instance whose number an earlier one has: only the
  /// earlier one will be found. Takes 4 bytes an instance where numbers are dense, 24 where they
  /// are not.
  template <class Callback>
  void index(Callback&& duplicate) {
    m_instances.shrink_to_fit();
    makeIndex();
    for (std::size_t i = 0; i < m_instances.size(); ++i) {
      if (!enter(m_instances[i].number, static_cast<std::uint32_t>(i))) duplicate(i);
    }
  }

  /// The entity of the instance, which is null when it was left out; null when there is no instance
  /// of that number.
  const std::shared_ptr<fc::FcBase>* find(std::uint64_t number) const {
    const std::uint32_t position = m_sparse                  ? m_byNumber.find(number)
                                   : number < m_dense.size() ? m_dense[number]
                                                             : none;
    return position == none ? nullptr : &m_instances[position].entity;
  }

  std::size_t size() const { return m_instances.size(); }
  NumberedEntity& operator[](std::size_t i) { return m_instances[i]; }
  std::vector<NumberedEntity> release() { return std::move(m_instances); }

 private:
  static constexpr std::uint32_t none = NumberMap::none;

  void makeIndex();
  bool enter(std::uint64_t number, std::uint32_t position);

  std::vector<NumberedEntity> m_instances;
  bool m_sparse = false;
  std::vector<std::uint32_t> m_dense;
  NumberMap m_byNumber;
};

}  // namespace qor::host::step
