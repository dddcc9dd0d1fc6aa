#include "Qor/String/IgnoreCase.h"

#include <algorithm>

namespace qor {

namespace {

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool equalsIgnoreCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) { return lowered(x) == lowered(y); });
}

}  // namespace qor
