#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace qor::object {

/// A string literal as a template argument; `Size` counts the terminating zero.
template <std::size_t Size>
struct FixedString {
  // Implicit by design: that is how a literal becomes a template argument.
  consteval FixedString(const char (&literal)[Size]) { std::copy_n(literal, Size, characters); }

  constexpr std::string_view view() const { return {characters, Size - 1}; }

  char characters[Size]{};
};

}  // namespace qor::object
