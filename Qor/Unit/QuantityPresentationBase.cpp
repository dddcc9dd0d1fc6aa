#include "Qor/Unit/QuantityPresentationBase.h"

#include <utility>

#include "Qor/Unit/QuantityBase.h"

namespace qor::unit {

QuantityPresentationBase::QuantityPresentationBase(QppSettings settings,
                                                   const QuantityBase& quantity, double number,
                                                   std::string text)
    : m_settings(std::move(settings)),
      m_quantity(quantity),
      m_number(number),
      m_text(std::move(text)) {}

bool QuantityPresentationBase::setSettings(QppSettings settings) {
  if (!settings.unit.isValid()) return false;
  m_settings = std::move(settings);
  return true;
}

bool QuantityPresentationBase::showIn(std::string_view symbol) {
  const DisplayUnit* unit = m_quantity.findUnit(symbol);
  if (unit) m_settings.unit = *unit;
  return unit != nullptr;
}

std::string QuantityPresentationBase::toString(bool withUnit) const {
  return m_text.empty() ? m_settings.writeToString(m_number, withUnit) : m_text;
}

}  // namespace qor::unit
