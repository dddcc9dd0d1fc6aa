#include "Qor/Unit/QuantityPresentationFactory.h"

#include <map>
#include <mutex>

#include "Qor/Unit/QuantityBase.h"

namespace qor::unit {

namespace {

struct PropertySettings {
  QuantityId quantity;
  QppSettings settings;
};

struct AllPropertySettings {
  std::mutex mutex;
  std::map<std::string, PropertySettings, std::less<>> byId;
};

AllPropertySettings& all() {
  static AllPropertySettings settings;
  return settings;
}

}  // namespace

bool QuantityPresentationFactory::setForIfcPropertyId(std::string ifcPropertyId,
                                                      const QuantityBase& quantity,
                                                      QppSettings settings) {
  if (!settings.unit.isValid()) return false;
  const std::lock_guard lock(all().mutex);
  all().byId.insert_or_assign(std::move(ifcPropertyId),
                              PropertySettings{quantity.id(), std::move(settings)});
  return true;
}

void QuantityPresentationFactory::eraseForIfcPropertyId(std::string_view ifcPropertyId) {
  const std::lock_guard lock(all().mutex);
  const auto found = all().byId.find(ifcPropertyId);
  if (found != all().byId.end()) all().byId.erase(found);
}

std::unique_ptr<QuantityPresentationBase>
QuantityPresentationFactory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
    std::string_view ifcPropertyId, const QuantityBase& quantity, double number) {
  QppSettings settings;
  {
    const std::lock_guard lock(all().mutex);
    const auto found = all().byId.find(ifcPropertyId);
    if (found == all().byId.end() || found->second.quantity != quantity.id()) return nullptr;
    settings = found->second.settings;
  }
  auto presentation = quantity.createPresentation(number);
  presentation->setSettings(std::move(settings));
  return presentation;
}

}  // namespace qor::unit
