#include "Fc/Model/Localize.h"

#include "Qor/Localization/Dictionaries.h"
#include "Qor/Localization/LocalizationService.h"

namespace qor::fc {

std::string localizeWithFallback(std::string_view key, std::string_view fallback) {
  const auto& service = qor::resource::localization::getAdminInstance();
  for (const auto& context : qor::localization::Dictionaries::getContexts("IFC"))
    if (auto text = service.getText(context, key)) return *std::move(text);
  return std::string(fallback);
}

std::string localize(std::string_view text) { return localizeWithFallback(text, text); }

std::string localize(std::string_view context, std::string_view text) {
  return localizeWithFallback(std::string(context) + "." + std::string(text), text);
}

}  // namespace qor::fc
