#pragma once

#include <string>
#include <string_view>

namespace qor::host::cli {

/// `text` in one line that does no harm to a terminal: UTF-8 as it is, control characters as "\n",
/// "\t", "\u001B". What is no UTF-8 becomes U+FFFD, byte by byte.
std::string printable(std::string_view text);

/// The same between apostrophes.
std::string inQuotes(std::string_view text);

}  // namespace qor::host::cli
