#include "Qor/Localization/LocalizationService.h"

namespace qor::localization {

std::optional<std::string> LocalizationService::getText(const DictionaryContext& context,
                                                        std::string_view key) const {
  return context.text(key);
}

}  // namespace qor::localization

namespace qor::resource::localization {

const qor::localization::LocalizationService& getAdminInstance() {
  static const qor::localization::LocalizationService service;
  return service;
}

}  // namespace qor::resource::localization
