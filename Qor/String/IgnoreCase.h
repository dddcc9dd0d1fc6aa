#pragma once

#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor {

/// True when the texts are equal but for the case of the letters A to Z. Every other byte, those of
/// letters beyond ASCII included, must be the same. No locale is asked, nothing is allocated.
QOR_API bool equalsIgnoreCase(std::string_view a, std::string_view b);

}  // namespace qor
