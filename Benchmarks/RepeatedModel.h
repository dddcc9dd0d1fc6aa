#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qor::host::step {

/// A STEP file of at least `size` bytes: the instances of `text` over and over, each time with
/// numbers and references behind those of the time before and with guids of their own. `text` must
/// be sound and have one DATA section.
std::string repeatedModel(std::string_view text, std::size_t size);

}  // namespace qor::host::step
