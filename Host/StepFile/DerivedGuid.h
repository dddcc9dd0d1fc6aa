#pragma once

#include <string_view>

#include "Qor/Id/Guid.h"

namespace qor::host::step {

/// The guid that stands in for a text that is none: what the text spells in another form of guids,
/// else one made of its characters (version 8), the same for the same text in every file and run.
/// Never the null guid.
Guid guidOfText(std::string_view text);

}  // namespace qor::host::step
