#include "Qor/Unit/QuantityBase.h"

#include "Qor/Unit/StandardDisplay.h"

namespace qor::unit {

QuantityBase::QuantityBase(QuantityId id, const Dimensions& dimensions)
    : m_id(id),
      m_dimensions(dimensions),
      m_units(standardDisplay(id).units),
      m_default(standardDisplay(id).settings()) {}

const DisplayUnit* QuantityBase::findUnit(std::string_view symbol) const {
  for (const DisplayUnit& unit : m_units)
    if (unit.symbol == symbol) return &unit;
  return nullptr;
}

QppSettings QuantityBase::qppDefault() const {
  const std::lock_guard lock(m_mutex);
  return m_default;
}

bool QuantityBase::setQppDefault(QppSettings settings) {
  if (!settings.unit.isValid()) return false;
  const std::lock_guard lock(m_mutex);
  m_default = std::move(settings);
  return true;
}

void QuantityBase::resetQppDefault() { setQppDefault(standardDisplay(m_id).settings()); }

}  // namespace qor::unit
