#pragma once

#include <string_view>
#include <vector>

#include "Qor/Localization/DictionaryContext.h"
#include "Qor/Platform/Export.h"

namespace qor::localization {

/// The dictionaries that the host has registered, process-wide; none at the start. Every operation
/// may be called from any thread; readers don't wait for each other.
class QOR_API Dictionaries {
 public:
  /// Registers a dictionary behind those that are there.
  static void add(const DictionaryContext& context);

  /// Withdraws a dictionary; false when it wasn't registered.
  static bool remove(const DictionaryContext& context);

  /// The dictionaries of the domain `name`, the one that was registered first in front. No
  /// allocation when there is none.
  static std::vector<DictionaryContext> getContexts(std::string_view name);
};

}  // namespace qor::localization
