#include "Host/StepFile/InstanceTable.h"

#include <algorithm>

namespace qor::host::step {

namespace {

// Numbers up to this many times the number of instances (exporters leave gaps) go into a plain
// array.
constexpr std::uint64_t densest = 4;

}  // namespace

void InstanceTable::makeIndex() {
  std::uint64_t last = 0;
  for (const NumberedEntity& instance : m_instances) last = std::max(last, instance.number);
  m_sparse = last / densest > m_instances.size();
  if (m_sparse)
    m_byNumber.reserve(m_instances.size());
  else
    m_dense.assign(static_cast<std::size_t>(last) + 1, none);
}

bool InstanceTable::enter(std::uint64_t number, std::uint32_t position) {
  if (m_sparse) return m_byNumber.insert(number, position);
  std::uint32_t& entry = m_dense[number];
  if (entry != none) return false;
  entry = position;
  return true;
}

}  // namespace qor::host::step
