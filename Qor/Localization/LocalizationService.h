#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Qor/Localization/DictionaryContext.h"
#include "Qor/Platform/Export.h"

namespace qor::localization {

/// Answers what a key is called in the language of the dictionary that is asked. Has no state; any
/// thread may ask.
class QOR_API LocalizationService {
 public:
  /// Empty when the dictionary of `context` has no such key.
  std::optional<std::string> getText(const DictionaryContext& context, std::string_view key) const;
};

}  // namespace qor::localization

namespace qor::resource::localization {

/// The one service of the process.
QOR_API const qor::localization::LocalizationService& getAdminInstance();

}  // namespace qor::resource::localization
