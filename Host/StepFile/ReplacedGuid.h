#pragma once

#include <cstdint>
#include <string>

#include "Qor/Id/Guid.h"

namespace qor::host::step {

/// A `GlobalId` of a file that was none, or not there.
struct ReplacedGuid {
  std::uint64_t instance;
  std::string text;  ///< as the file has it, without its apostrophes; empty where it has none
  Guid guid;  ///< what stands in its place: of the text, or of the number where there is none
};

}  // namespace qor::host::step
