#pragma once

#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor::fc {

/// The text for `key` from the first dictionary of context "IFC" that has it, else `fallback`. One
/// look-up per dictionary.
QOR_API std::string localizeWithFallback(std::string_view key, std::string_view fallback);
/// The text for `text`, else `text` itself.
QOR_API std::string localize(std::string_view text);
/// The text for `context` + "." + `text`, else `text`.
QOR_API std::string localize(std::string_view context, std::string_view text);

}  // namespace qor::fc
