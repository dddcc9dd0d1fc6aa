#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace qor::host::cli {

/// The number that all of the text is, in decimal digits; empty for any other text.
std::optional<std::uint64_t> wholeNumber(std::string_view text);

/// The numbers on both sides of the first separator, as in "320x240"; empty for any other text.
std::optional<std::pair<std::uint64_t, std::uint64_t>> twoWholeNumbers(std::string_view text,
                                                                       char separator);

}  // namespace qor::host::cli
