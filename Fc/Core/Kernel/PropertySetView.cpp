#include "Fc/Core/Kernel/PropertySetView.h"

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Data.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"

namespace qor::fc::core::kernel {

using resource::measure::FcValue;
using resource::property::FcPropertySingleValue;

const std::optional<std::string>& PropertySetView::Name() const { return m_set->Name(); }

const std::vector<std::shared_ptr<resource::property::FcProperty>>& PropertySetView::HasProperties()
    const {
  return m_set->HasProperties();
}

const FcValue* PropertySetView::value(const char* name) const {
  const auto property = fcCast<FcPropertySingleValue>(m_set->getPropertyAsFcBase(name));
  return property ? &property->NominalValue() : nullptr;
}

std::optional<std::string> PropertySetView::text(const char* name) const {
  const FcValue* found = value(name);
  const LocalValue local = found ? found->getLocalValue() : LocalValue();
  const auto* text = std::get_if<std::string>(&local.value);
  return text ? std::optional(*text) : std::nullopt;
}

std::optional<double> PropertySetView::number(const char* name) const {
  const FcValue* found = value(name);
  return found ? found->valueAsDoubleGet() : std::nullopt;
}

std::optional<std::int64_t> PropertySetView::integer(const char* name) const {
  const FcValue* found = value(name);
  const LocalValue local = found ? found->getLocalValue() : LocalValue();
  const auto* integer = std::get_if<std::int64_t>(&local.value);
  return integer ? std::optional(*integer) : std::nullopt;
}

std::optional<bool> PropertySetView::boolean(const char* name) const {
  const FcValue* found = value(name);
  const LocalValue local = found ? found->getLocalValue() : LocalValue();
  if (const auto* flag = std::get_if<bool>(&local.value)) return *flag;
  const auto* logical = std::get_if<LogicalValue>(&local.value);
  return logical && *logical != LogicalValue::Unknown
             ? std::optional(*logical == LogicalValue::True)
             : std::nullopt;
}

void PropertySetView::setValue(const char* name, FcValue value) {
  auto property = fcCast<FcPropertySingleValue>(m_set->getPropertyAsFcBase(name));
  if (!property) {
    m_set->deleteProperty(name);
    const std::shared_ptr<Data> data = m_set->data();
    property = data ? data->create<FcPropertySingleValue>() : makeEntity<FcPropertySingleValue>();
    property->setName(name);
    m_set->addProperty(property);
  }
  property->setNominalValue(std::move(value));
}

}  // namespace qor::fc::core::kernel
