#pragma once

#include "Qor/Platform/Export.h"

namespace qor::fc::core::kernel {
class FcObjectDefinition;
}

namespace qor::fc::utilities {

/// Folds what one object definition tells into another: copies of its properties, which replace
/// those of the same name, copies of its quantities, which stand beside those that are there, and
/// its name, description, object type, tag and predefined type where the target has none.
///
/// The target gets them in its own model; nothing is copied, and an assert raised, for a target
/// that is in none. `source` isn't changed.
QOR_API void merge(core::kernel::FcObjectDefinition& target,
                   const core::kernel::FcObjectDefinition& source);

}  // namespace qor::fc::utilities
