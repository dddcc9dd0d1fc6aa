#pragma once

#include <string>
#include <string_view>

namespace qor::host::targets {

/// `text` as other formats can hold it: well-formed UTF-8 with U+FFFD for each byte that is none,
/// and a space for each control character.
std::string cleanText(std::string_view text);

/// The same as the content of an XML element or attribute.
std::string xmlText(std::string_view text);

}  // namespace qor::host::targets
