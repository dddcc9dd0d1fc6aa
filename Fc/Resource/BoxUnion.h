#pragma once

#include <optional>

#include "Qor/Math/Extent.h"

namespace qor::fc {
class FcParams;
}

namespace qor::fc::resource {

/// The box around all items of a list, of pointers, that have one; empty when none has. Null
/// pointers are passed over.
template <class Items>
std::optional<math::Extent> unitedBox(const Items& items, const FcParams& params) {
  math::Extent united;
  for (const auto& item : items) {
    if (!item) continue;
    if (const std::optional<math::Extent> box = item->boundingBox(params))
      united = united.uniteWith(*box);
  }
  return united.isValid() ? std::optional(united) : std::nullopt;
}

}  // namespace qor::fc::resource
