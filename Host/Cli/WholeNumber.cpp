#include "Host/Cli/WholeNumber.h"

#include <charconv>

namespace qor::host::cli {

std::optional<std::uint64_t> wholeNumber(std::string_view text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole ? std::optional(number) : std::nullopt;
}

std::optional<std::pair<std::uint64_t, std::uint64_t>> twoWholeNumbers(std::string_view text,
                                                                       char separator) {
  const std::size_t middle = text.find(separator);
  if (middle == std::string_view::npos) return std::nullopt;
  const auto first = wholeNumber(text.substr(0, middle));
  const auto second = wholeNumber(text.substr(middle + 1));
  return first && second ? std::optional(std::pair(*first, *second)) : std::nullopt;
}

}  // namespace qor::host::cli
