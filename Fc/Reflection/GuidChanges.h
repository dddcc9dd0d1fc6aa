#pragma once

#include <cstdint>

#include "Qor/Platform/Export.h"

namespace qor::fc {

/// A number, never 0, that grows whenever some root is given a guid, by whatever road and in
/// whatever model. As long as it stays, no root that had no guid has one. From any thread.
QOR_API std::uint64_t guidChanges();
QOR_API void noteGuidChange();

}  // namespace qor::fc
