#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qor::host::step {

/// The UTF-8 of a file in UTF-16 of either byte order, known by its byte order mark or by the zeros
/// between the characters of its first word; empty for any other file. What is no character becomes
/// U+FFFD.
std::optional<std::string> utf8OfUtf16(std::string_view bytes);

}  // namespace qor::host::step
