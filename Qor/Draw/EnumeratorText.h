#pragma once

#include <cstddef>

namespace qor::generate::draw {

/// The text at the position of an enumerator; "" for a value beyond the last text.
template <class Enumerator, std::size_t Size>
const char* textOf(const char* const (&texts)[Size], Enumerator value) {
  const auto position = static_cast<std::size_t>(value);
  return position < Size ? texts[position] : "";
}

}  // namespace qor::generate::draw
